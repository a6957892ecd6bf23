// The kinds of field that a wrapper converts. Private to the library and its tools.
//
// A kind is a type whose template arguments are the message's accessors and the struct's member, so
// that every call is direct and the conversions compile to plain assignments. Each kind knows the
// three directions of its field:
//
//   load   message to the wrapper's own message
//   read   struct to message
//   write  message to struct
//
// kGet is the accessor by which a field is known, kMember the member; a reader that treats kinds
// alike asks for the kForm.
#pragma once

#include <google/protobuf/repeated_field.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace zorpb {

using List32 = google::protobuf::RepeatedField<int32_t>;

enum class Form { kScalar, kList, kText, kBlock, kReserved };

template <class T>
struct MemberPointer;
template <class S, class T>
struct MemberPointer<T S::*> {
  using Type = T;
};
template <auto member>
using MemberType = typename MemberPointer<decltype(member)>::Type;

// Appends the first count elements of from. One range append: the list grows at most once.
inline void append(const int32_t* from, int count, List32* to) { to->Add(from, from + count); }

// An integer. A 16-bit member is sign-extended on the way in and takes the low 16 bits on the way
// out: the engine's interface has no room to say that a value did not fit.
template <auto get, auto set, auto member>
struct Scalar {
  using Member = MemberType<member>;
  static constexpr Form kForm = Form::kScalar;
  static constexpr bool kLoaded = true;
  static constexpr auto kGet = get;
  static constexpr auto kMember = member;
  const char* name;

  template <class M>
  static void load(const M& from, M& to) {
    (to.*set)((from.*get)());
  }
  template <class S, class M>
  static void read(const S& from, M& to) {
    (to.*set)(from.*member);
  }
  template <class M, class S>
  static void write(const M& from, S& to) {
    to.*member = static_cast<Member>((from.*get)());
  }
};

// An integer that is written out but never loaded, so that the struct always gets its default.
template <auto get, auto set, auto member>
struct UnloadedScalar : Scalar<get, set, member> {
  static constexpr bool kLoaded = false;

  template <class M>
  static void load(const M&, M&) {}
};

// A list against a member made of 32-bit words: an array, or nested arrays in the order in which
// they lie in memory. At most capacity elements are loaded and written; a struct always yields
// capacity elements.
template <class M, const List32& (M::*get)() const, List32* (M::*mut)(), auto member>
struct List {
  using Member = MemberType<member>;
  static constexpr Form kForm = Form::kList;
  static constexpr bool kMustBeFull = false;  // a shorter source is a caller error
  static constexpr bool kBounded = true;      // the capacity holds when the list is written
  static constexpr auto kGet = get;
  static constexpr auto kMember = member;
  // NOLINTNEXTLINE(bugprone-sizeof-expression): a nested array counts in words, too.
  static constexpr int kCapacity = static_cast<int>(sizeof(Member) / sizeof(int32_t));
  const char* name;

  static const List32& values(const M& from) { return (from.*get)(); }
  static void load(const M& from, M& to) {
    append(values(from).data(), std::min(values(from).size(), kCapacity), (to.*mut)());
  }
  template <class S>
  static void read(const S& from, M& to) {
    append(reinterpret_cast<const int32_t*>(&(from.*member)), kCapacity, (to.*mut)());
  }
  template <class S>
  static void write(const M& from, S& to) {
    const int count = std::min(values(from).size(), kCapacity);
    std::copy_n(values(from).data(), count, reinterpret_cast<int32_t*>(&(to.*member)));
  }
};

// A list that the engine takes in full: a source with fewer elements is a caller error. It is
// loaded all the same, as far as it goes.
template <class M, const List32& (M::*get)() const, List32* (M::*mut)(), auto member>
struct FullList : List<M, get, mut, member> {
  static constexpr bool kMustBeFull = true;
};

// A list that the wrapper's message keeps whole; the capacity only cuts what the struct gets.
template <class M, const List32& (M::*get)() const, List32* (M::*mut)(), auto member>
struct OpenList : List<M, get, mut, member> {
  static void load(const M& from, M& to) {
    append((from.*get)().data(), (from.*get)().size(), (to.*mut)());
  }
};

// A list that is written whole, WHATEVER THE CAPACITY: elements past it land in the memory that
// follows the member. The bytes are moved by address, so that no array bound is in sight from which
// a compiler could conclude that the overrun does not happen.
template <class M, const List32& (M::*get)() const, List32* (M::*mut)(), auto member>
struct UnboundedList : OpenList<M, get, mut, member> {
  static constexpr bool kBounded = false;

  template <class S>
  static void write(const M& from, S& to) {
    const List32& list = (from.*get)();
    char* const start = reinterpret_cast<char*>(&to);
    const auto offset = reinterpret_cast<char*>(&(to.*member)) - start;
    if (!list.empty()) {
      std::memcpy(start + offset, list.data(), sizeof(int32_t) * static_cast<size_t>(list.size()));
    }
  }
};

// A string against a borrowed pointer. After write the struct points into the message, and does so
// only while that message lives and the string is not changed.
template <auto get, auto mut, auto member>
struct BorrowedString {
  using Member = MemberType<member>;
  static constexpr Form kForm = Form::kText;
  static constexpr auto kGet = get;
  static constexpr auto kMember = member;
  const char* name;

  template <class M>
  static void load(const M& from, M& to) {
    *(to.*mut)() = (from.*get)();
  }
  template <class S, class M>
  static void read(const S& from, M& to) {
    *(to.*mut)() = from.*member;
  }
  template <class M, class S>
  static void write(const M& from, S& to) {
    to.*member = (from.*get)().c_str();
  }
};

// A struct within a struct. Child wrappers convert it; which and when is the composite's own
// business and stands in its source.
template <auto get, auto member>
struct Nested {
  using Member = MemberType<member>;
  static constexpr Form kForm = Form::kBlock;
  static constexpr bool kToStruct = true;  // a message that has the block reaches the struct
  static constexpr auto kGet = get;
  static constexpr auto kMember = member;
  const char* name;
};

// A struct within a struct that travels from struct to message only.
template <auto get, auto member>
struct NestedToMessage : Nested<get, member> {
  static constexpr bool kToStruct = false;
};

// Words of the engine's own, which no conversion touches.
template <auto member>
struct Reserved {
  using Member = MemberType<member>;
  static constexpr Form kForm = Form::kReserved;
  static constexpr auto kGet = nullptr;
  static constexpr auto kMember = member;
  const char* name;
};

}  // namespace zorpb
