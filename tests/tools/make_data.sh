#!/bin/sh -eu
# make_data.sh FOLDER ZORCS SPEAKER HEADPHONES: makes FOLDER anew, with the tests' files. Those that the
# command can make are made with it: where that fails, no test runs.
folder=$1 zorcs=$2 speaker=$3 headphones=$4
rm -rf -- "$folder"
mkdir -p "$folder"
cd "$folder"

"$zorcs" build "$speaker" -o speaker.binpb >findings
"$zorcs" build - -o - <"$headphones" >headphones.binpb 2>findings
"$zorcs" show --full headphones.binpb >full.txtpb
"$zorcs" show --json speaker.binpb | sed 's/.*"configuration"://; s/}$//' >speaker.json
"$zorcs" pack speaker.binpb --premix pre.img --postmix post.img
"$zorcs" unpack --premix pre.img --postmix post.img -o device.binpb
"$zorcs" pack device.binpb --premix pre2.img --postmix post2.img
cmp pre.img pre2.img
# The high-pass coefficients reach the struct and do not come back from it.
test "$(cmp -l post.img post2.img | wc -l)" -le 80

printf 'version: "1"\npremix { leveler { enable: 1 lkfs_gain: 40000 } }\n' >lossy.txtpb
printf 'version: "1"\npostmix { hpf_coef { uuid: "u" cutoff: 1 order: 1 sample_rate: 1\n%s }}\n' \
  "$(yes 'coeffs: 1' | head -21)" >overrun.txtpb
"$zorcs" build overrun.txtpb -o overrun.binpb >findings || test $? = 1
cp speaker.binpb unknown.binpb
printf '\032\011\230\006\005\230\006\007\012\001x' >>unknown.binpb
printf '{"postmix": {"geq10b": {}}}' >incomplete.json
sed 's/stream_gain: 16384/stream_gain: 5/; s/\(hpeq_coeffs: .*\)]/\1, 7]/
     s/\(orb_input_gain: \).*/\1[13015, 13016, 13014, 11598, 11598, 8100]/' full.txtpb >changed.txtpb

printf 'postmix {\n  # a: b\n  foo: 1\n}\n' >bad_field.txtpb
printf 'postmix {\n  hpf_coef { coeffs: [1, 2,\n    99999999999] }\n}\n' >bad_value.txtpb
printf '{"premix": {"foo": 1},\n "postmix": {\n  "vantix": {"foo": 1},\n   "foo": 1}}' >bad_field.json
printf '{"postmix":\n {"orb_input_gain": [1, 2,\n   "x"]}}' >bad_value.json
printf '{"postmix":\n {"limiter": nope}}' >bad_syntax.json

head -c 1000 speaker.binpb >truncated.binpb
: >empty.binpb
: >empty.txtpb
for file in huge huge.json huge.txtpb; do truncate -s 100M $file; done
awk 'BEGIN { srand(1); for (i = 0; i < 3000; ++i) printf "%c", 128 + int(rand() * 128) }' >random
cp random random.txtpb
cp random random.json
head -c 100000 /dev/zero | tr '\0' '{' >deep.binpb
yes 'postmix {' | head -20000 >deep.txtpb
yes '{"postmix":' | head -20000 >deep.json
cp speaker.binpb unreadable.binpb
chmod 0 unreadable.binpb
