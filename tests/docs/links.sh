#!/bin/sh -eu
# links.sh DOCUMENT...: what the documents link to or show as a picture is there: files, and headings
# of documents. Other sites are not asked.
failed=0
for document in "$@"; do
  # Code is no link, whatever its brackets.
  for target in $(sed '/^```/,/^```/d; s/`[^`]*`//g' "$document" \
                    | grep -oE '\]\([^)]+\)|(src|href)="[^"]+"' \
                    | sed -E 's/^[^("]*[("]//; s/[)"]$//' | grep -vE '^[a-z]+:'); do
    path=${target%%#*}
    heading=${target#"$path"}
    file=${path:+$(dirname "$document")/}${path:-$document}
    if ! [ -e "$file" ] || { [ "$heading" ] && ! sed -n 's/^##* //p' "$file" \
           | tr '[:upper:] ' '[:lower:]-' | tr -cd 'a-z0-9_\n-' | grep -qxF -- "${heading#\#}"; }; then
      echo "$document: nothing is at $target"
      failed=1
    fi
  done
done
exit $failed
