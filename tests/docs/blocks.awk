# awk -v folder=FOLDER -f blocks.awk DOCUMENT...: writes each fenced block of the documents to a file of
# its own in FOLDER: by its name where it has one ("```cpp hal.cpp"), else by the document's name, its
# line and its language.
FNR == 1 {
  document = FILENAME
  sub(".*/", "", document)
}

/^```/ {
  if (block) {
    close(block)
    block = ""
    next
  }
  language = substr($1, 4)
  block = folder "/" ($2 ? $2 : sprintf("%s.%04d.%s", document, FNR, language ? language : "text"))
  printf "" >block
  next
}

block { print >block }
