#include <iomanip>
#include <iostream>
#include <string>

#include "Commands.h"
#include "JsonRecord.h"
#include "Layout.h"
#include "Trouble.h"

namespace {

void printLines(std::ostream& os) {
  std::string last;
  for (const auto& row : layoutRows()) {
    if (row.structName != last) {
      os << (last.empty() ? "" : "\n") << row.structName
         << (row.message.empty() ? "" : " (" + row.message + ")") << "\n  offset  size  member\n";
    }
    last = row.structName;
    os << "  " << std::right << std::setw(6) << row.offset << std::setw(6) << row.size << "  "
       << std::left << std::setw(25) << row.member << std::setw(28) << row.type
       << (row.field.empty() ? "-" : row.field + " = " + std::to_string(row.number))
       << (row.capacity > 0 ? ", capacity " + std::to_string(row.capacity) : "") << "\n";
  }
  os << "\nlayout " << layoutHash() << "\n";
}

void printJson(std::ostream& os) {
  for (const auto& row : layoutRows()) {
    JsonRecord record;
    record.add("struct", row.structName)
        .add("member", row.member)
        .add("type", row.type)
        .add("offset", static_cast<int64_t>(row.offset))
        .add("size", static_cast<int64_t>(row.size));
    if (row.capacity > 0) record.add("capacity", row.capacity);
    if (!row.field.empty()) {
      record.add("message", row.message).add("field", row.field).add("number", row.number);
    }
    os << record;
  }
  os << JsonRecord().add("layout_hash", layoutHash());
}

}  // namespace

int layout(const LayoutOptions& options) {
  options.json ? printJson(std::cout) : printLines(std::cout);
  return kClean;
}
