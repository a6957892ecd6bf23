#!/bin/bash -eu
# completes.sh ZORCS FOLDER: the completion and the man page in FOLDER know each subcommand that ZORCS
# --help lists, and the completion each of its options.
zorcs=$1
source "$2/zorcs.bash"

complete_words() {
  COMP_WORDS=("$@")
  COMP_CWORD=$(($# - 1))
  _zorcs
  printf '%s\n' "${COMPREPLY[@]}"
}

subcommands=$("$zorcs" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p')
test "$(wc -w <<<"$subcommands")" -eq 9
for subcommand in $subcommands; do
  complete_words zorcs "$subcommand" | grep -qx "$subcommand"
  grep -q "^\\\\fBzorcs $subcommand\\\\fR" "$2/zorcs.1"
  for option in $("$zorcs" "$subcommand" --help | grep -o -- '--[a-z]*' | sort -u); do
    complete_words zorcs "$subcommand" -- | grep -qx -- "$option"
  done
done
