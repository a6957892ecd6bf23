# Prints the lines that an lcov file counts as never run, and fails when one of them is no exception,
# or an exception holds no longer. To be given the exceptions, then the lcov file; root is what
# precedes the names of the exceptions there.
#
# An exception names a line by its text; with a line that ends with a brace it names all up to the
# brace that closes it, in the same column.

function read_source(file,    n) {
  delete text
  for (n = 1; (getline line < file) > 0; ++n) text[n] = line
  close(file)
}

function indent(s) { return match(s, /[^ ]/) }

function trimmed(s) {
  gsub(/^ +| +$/, "", s)
  return s
}

# The number of the line whose brace closes the one that line n opens.
function closing(n,    column) {
  column = indent(text[n])
  do ++n; while (n in text && (indent(text[n]) != column || trimmed(text[n]) !~ /^}/))
  return n
}

FILENAME == ARGV[1] {
  if ($0 == "" || /^#/) next
  split($0, part, " \\| ")
  reasons[part[1], part[2]] = part[3]
  next
}

/^SF:/ {
  file = substr($0, 4)
  read_source(file)
  name = substr(file, length(root) + 1)
  end = 0
}

/^DA:/ {
  split(substr($0, 4), field, ",")
  number = field[1] + 0
  if (field[2] > 0) next
  line = trimmed(text[number])
  if (number > end) reason = ""
  if ((name, line) in reasons) {
    reason = reasons[name, line]
    used[name, line] = 1
    end = line ~ /{$/ ? closing(number) : number
  }
  if (reason == "") failed = 1
  print name ":" number ": " line " (" (reason == "" ? "not covered" : reason) ")"
}

END {
  for (key in reasons) {
    if (key in used) continue
    sub(SUBSEP, " | ", key)
    print "tests/coverage_exceptions.txt: is reached, or gone: " key
    failed = 1
  }
  exit failed
}
