#!/bin/sh -eu
# keeps_old_file.sh ZORCS CONFIGURATION: a run that cannot write all leaves the old file, and nothing
# beside it; one that can replaces it and keeps its permissions.
zorcs=$1 configuration=$2
rm -rf old
mkdir old
cd old
echo old >file
chmod 640 file
ln -s file link

# The limit on file size stands for a disk that fills up half-way.
if (ulimit -f 8 && trap '' XFSZ && exec "$zorcs" build "$configuration" -o file 2>../err); then exit 1; fi
grep -q '^zorcs: file: File too large$' ../err
test "$(cat file)" = old
test "$(ls)" = "$(printf 'file\nlink')"

# Of two images neither is replaced when one cannot be.
if "$zorcs" pack "$configuration" --premix file --postmix none/file 2>/dev/null; then exit 1; fi
test "$(cat file)" = old

"$zorcs" build "$configuration" -o link >/dev/null
test -L link
test "$(stat -c %a file)" = 640
"$zorcs" diff "$configuration" file
