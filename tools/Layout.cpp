#include "Layout.h"

#include <cstddef>
#include <iomanip>
#include <sstream>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "Schema.h"
#include "ZorPbFields.h"

namespace {

// What the compiler writes for the template argument of a function, given what it says of that.
std::string argumentIn(std::string_view function) {
  const auto start = function.find("= ") + 2;
  return std::string(function.substr(start, function.find_first_of(";]", start) - start));
}
template <class T>
std::string nameOfType() {
  return argumentIn(__PRETTY_FUNCTION__);
}
template <auto member>
std::string nameOfMember() {
  const std::string name = argumentIn(__PRETTY_FUNCTION__);
  return name.substr(name.rfind(':') + 1);
}

template <class T>
std::string typeText() {
  if constexpr (std::is_array_v<T>) {
    return typeText<std::remove_extent_t<T>>() + "[" + std::to_string(std::extent_v<T>) + "]";
  } else if constexpr (std::is_same_v<T, int16_t>) {
    return "int16_t";
  } else if constexpr (std::is_same_v<T, int32_t>) {
    return "int32_t";
  } else if constexpr (std::is_same_v<T, const char*>) {
    return "const char*";
  } else {
    return nameOfType<T>();
  }
}

template <class Struct>
const Struct& example() {
  static const Struct kExample = {};
  return kExample;
}

template <class Struct, auto member>
MemberRow rowOf() {
  const auto& s = example<Struct>();
  const auto offset =
      reinterpret_cast<const char*>(&(s.*member)) - reinterpret_cast<const char*>(&s);
  return {nameOfType<Struct>(), nameOfMember<member>(), typeText<zorpb::MemberType<member>>(),
          static_cast<std::size_t>(offset), sizeof(s.*member)};
}

template <class Fields>
void addRows(std::vector<MemberRow>* rows) {
  const auto* message = schema::findMessage(typename Fields::Message().GetTypeName());
  Fields::each([&](auto field) {
    auto row = rowOf<typename Fields::Struct, decltype(field)::kMember>();
    if constexpr (decltype(field)::kForm == zorpb::Form::kList) {
      row.capacity = decltype(field)::kCapacity;
    }
    if (const auto* descriptor = message->FindFieldByName(field.name)) {
      row.message = message->full_name();
      row.field = field.name;
      row.number = descriptor->number();
    }
    rows->push_back(std::move(row));
  });
}

// The one struct without a wrapper of its own: its words are part of a longer list.
void addBlockRows(std::vector<MemberRow>* rows) {
  using Block = _zorXeqApiCoeffBlock;
  static_assert(sizeof(Block) ==
                sizeof(Block::head) + sizeof(Block::table_a) + sizeof(Block::table_b));
  rows->push_back(rowOf<Block, &Block::head>());
  rows->push_back(rowOf<Block, &Block::table_a>());
  rows->push_back(rowOf<Block, &Block::table_b>());
}

template <class... Fields>
std::vector<MemberRow> rowsOf(std::tuple<Fields...>*) {
  std::vector<MemberRow> rows;
  addBlockRows(&rows);
  (addRows<Fields>(&rows), ...);
  return rows;
}

}  // namespace

const std::vector<MemberRow>& layoutRows() {
  static const auto kRows = rowsOf(static_cast<zorpb::AllFields*>(nullptr));
  return kRows;
}

std::string layoutHash() {
  uint64_t hash = 0xcbf29ce484222325;
  for (const auto& row : layoutRows()) {
    std::ostringstream text;
    text << row.structName << '\t' << row.member << '\t' << row.type << '\t' << row.offset << '\t'
         << row.size << '\t' << row.message << '\t' << row.field << '\t' << row.number << '\n';
    for (const char c : text.str()) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  }
  std::ostringstream hex;
  hex << std::hex << std::setw(16) << std::setfill('0') << hash;
  return hex.str();
}

int capacityOf(const std::string& message, const std::string& field) {
  for (const auto& row : layoutRows()) {
    if (row.message == message && row.field == field) return row.capacity;
  }
  return 0;
}
