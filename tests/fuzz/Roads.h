// The roads between message and struct, each followed into guarded memory and held against the
// layout: what a conversion may write, and what must survive a way there and back.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Guarded.h"
#include "NoLeftovers.h"

namespace zortest {

using Bytes = std::vector<unsigned char>;

// The longest runs of bytes of this value.
inline std::vector<Range> rangesOf(const Bytes& bytes, unsigned char value) {
  std::vector<Range> ranges;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != value) continue;
    if (ranges.empty() || ranges.back().end != i) ranges.push_back({i, i});
    ++ranges.back().end;
  }
  return ranges;
}

// For each byte whether it belongs to a member that travels this way: whether it comes out the same
// whatever was there before.
template <class C>
Bytes travelling(Depth depth) {
  Bytes overZeros(sizeof(typename C::S), 0);
  Bytes overOnes(sizeof(typename C::S), 0xFF);
  for (Bytes* image : {&overZeros, &overOnes}) {
    fillImage(C::layout(), depth, zero, capacityOf, image->data());
  }
  Bytes result;
  std::transform(overZeros.begin(), overZeros.end(), overOnes.begin(), std::back_inserter(result),
                 std::equal_to<>());
  return result;
}

// What a conversion to the struct must leave alone.
template <class C>
std::vector<Range> bystanders() {
  Bytes written = travelling<C>(Depth::kToStruct);
  if constexpr (std::is_same_v<C, DeepConversion>) {
    std::memset(&written[offsetof(_zorDeepApiCoeffEx, uuid)], 1, sizeof(char*));
  }
  return rangesOf(written, 0);
}

// The members that travel both ways.
template <class C>
std::vector<Range> travellers() {
  Bytes both = travelling<C>(Depth::kToStruct);
  const Bytes back = travelling<C>(Depth::kToMessage);
  std::transform(both.begin(), both.end(), back.begin(), both.begin(), std::logical_and<>());
  return rangesOf(both, 1);
}

// Message to struct.
template <class C>
void toStruct(const typename C::M& msg, unsigned char pattern, Guarded<typename C::S>* to) {
  static const auto untouched = bystanders<C>();
  NoLeftovers<typename C::W> wrapper(&msg);
  wrapper.populateStruct(to->fill(pattern));
  to->requireFilled(untouched);
  if constexpr (std::is_same_v<C, DeepConversion>) {
    require(to->get().uuid == msg.uuid(), "the string arrives");
    to->get().uuid = "";  // what it points to goes with the wrapper
  }
}

template <class W, class M, class = void>
struct Dumps : std::false_type {};
template <class W, class M>
struct Dumps<
    W, M,
    std::void_t<decltype(W::dumpRef(std::declval<const M&>(), std::declval<std::ostream&>()))>>
    : std::true_type {};

// Struct to message, and that through its bytes and its dump.
template <class C>
typename C::M toMessage(const typename C::S& s) {
  using M = typename C::M;
  const NoLeftovers<typename C::W> wrapper(s);
  const auto& held = dynamic_cast<const M&>(*wrapper.msg_);
  require(held.IsInitialized(), "a message made of a struct is complete");
  const std::string wire = held.SerializeAsString();
  M read;
  require(read.ParseFromString(wire), "what was written can be read");
  require(read.SerializeAsString() == wire, "it is read as it was written");
  if constexpr (Dumps<typename C::W, M>::value) {
    std::ostringstream text;
    C::W::dumpRef(read, text);
    require(!text.str().empty() && text.str().back() == '\n', "a dump is made of lines");
  }
  return read;
}

// Struct to message to bytes to message to struct: each member that travels both ways is the same.
template <class C>
void thereAndBack(Guarded<typename C::S>* from, Guarded<typename C::S>* to) {
  if constexpr (std::is_constructible_v<typename C::W, const typename C::S&>) {
    static const auto members = travellers<C>();
    toStruct<C>(toMessage<C>(from->get()), kPoison ^ 0xFF, to);
    const auto* before = reinterpret_cast<const char*>(&from->get());
    const auto* after = reinterpret_cast<const char*>(&to->get());
    for (const Range& range : members) {
      require(std::equal(before + range.begin, before + range.end, after + range.begin),
              "a member arrives unchanged");
    }
  }
}

}  // namespace zortest
