#!/bin/bash -eu
# make_seeds.sh PROTOC PROTO_DIR EXAMPLES_DIR FOLDER: the first inputs of each fuzz target, made of the
# examples.
protoc=$1 proto_dir=$2 examples=$3 folder=$4

rm -rf "$folder"
mkdir -p "$folder"/{message,struct,program,command}
byte() { printf "\\x$(printf %x "$1")"; }

for text in "$examples"/*.txtpb; do
  name=$(basename "$text" .txtpb)
  binary=$folder/message/$name
  "$protoc" --proto_path="$proto_dir" --encode=com.zor.onyx.fxp_std.Onyx onyx.proto \
    <"$text" >"$binary"
  # Every subcommand, on the forms that the input's first byte tells apart; long texts only slow the
  # fuzzer down.
  for chosen in {0..11}; do
    if [ "$(wc -c <"$text")" -lt 20000 ]; then
      { byte $((4 * chosen)); cat "$text"; } >"$folder/command/$name.text.$chosen"
    fi
    { byte $((4 * chosen + 2)); cat "$binary"; } >"$folder/command/$name.binary.$chosen"
  done
done
{ byte 1; printf '{"version": "1.0", "premix": {"output_device": 2}}'; } >"$folder/command/json"

# Every class: an image of a message's bytes, and a program that loads twice from each side.
for class in {0..14}; do
  { byte "$class"; cat "$folder/message/speaker"; } >"$folder/struct/$class"
  for step in 0 1 2 0 1 3; do
    byte "$class"; byte "$step"; byte 255; byte 255
  done >"$folder/program/$class"
done
