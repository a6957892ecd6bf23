// The text form of a message's fields. Private to the library.
#pragma once

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "ZorPbFieldKinds.h"

namespace zorpb {

// Prints the scalars, one a line: "<prefix>.<field> = <value>", the equals signs below one another.
// A label is put out in one piece, because a stream's width applies to one piece.
template <class M>
class ScalarDump {
 public:
  ScalarDump(const M& msg, std::string_view prefix, std::size_t width, std::ostream& os)
      : msg_(msg), prefix_(prefix), width_(width), os_(os) {}

  template <auto get, auto set, auto member>
  void operator()(Scalar<get, set, member> field) const {
    std::string label(prefix_);
    label.append(".").append(field.name);
    label.resize(std::max(label.size(), prefix_.size() + 1 + width_), ' ');
    label.append(" = ");
    os_ << label << (msg_.*get)() << std::endl;
  }
  template <auto get, auto member>
  void operator()(Nested<get, member>) const {}

 private:
  const M& msg_;
  std::string_view prefix_;
  std::size_t width_;
  std::ostream& os_;
};

// The length of the longest name among a class's scalars.
template <class Fields>
constexpr std::size_t longestName() {
  std::size_t longest = 0;
  Fields::each(
      [&longest](auto field) { longest = std::max(longest, std::string_view(field.name).size()); });
  return longest;
}

template <class Fields>
void dumpScalars(const typename Fields::Message& msg, std::string_view prefix, std::ostream& os) {
  Fields::each(ScalarDump<typename Fields::Message>(msg, prefix, longestName<Fields>(), os));
}

}  // namespace zorpb
