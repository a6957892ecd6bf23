#!/bin/sh -eu
# outputs.sh BLOCKS ZORCS EXAMPLES: runs what stands behind "$ " in the BLOCKS, all in one folder that has
# the EXAMPLES, and expects each block to show the commands and what they print, to the letter.
PATH=$(dirname "$2"):$PATH
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
mkdir "$work/run"
ln -s "$3" "$work/run/examples"
cd "$work/run"

blocks=$(grep -l '^\$ ' "$1"/*)
failed=0
for block in $blocks; do
  sed -n 's/^\$ //p' "$block" >"$work/commands"
  while IFS= read -r command; do
    printf '$ %s\n' "$command"
    sh -c "$command" </dev/null 2>&1 || true  # a finding is a status, too
  done <"$work/commands" >"$work/printed"
  diff -u "$block" "$work/printed" || failed=1
done
exit $failed
