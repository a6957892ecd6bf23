// The kinds of field that a message can have, as its schema declares them.
#pragma once

#include <google/protobuf/message_lite.h>
#include <google/protobuf/repeated_field.h>

#include <cstdint>
#include <type_traits>

namespace zorpb {

enum class Label { kRequired, kOptional };

// The fields of message class M: Schema<M>::each(visit).
template <class M>
struct Schema;

template <class T>
struct Getter;
template <class M, class T>
struct Getter<T (M::*)() const> {
  using Value = std::decay_t<T>;
};

template <Label label, auto present, auto get>
struct Singular {
  using Value = typename Getter<decltype(get)>::Value;
  static constexpr bool kSingular = true;
  static constexpr bool kRequired = label == Label::kRequired;
  static constexpr bool kIsMessage = std::is_base_of_v<google::protobuf::MessageLite, Value>;
  static constexpr auto kGet = get;
  const char* name;

  template <class M>
  static bool has(const M& msg) {
    return (msg.*present)();
  }
};

// A repeated field of values; the schema has no other than signed 32-bit ones.
template <class M, const google::protobuf::RepeatedField<int32_t>& (M::*get)() const>
struct Values {
  static constexpr bool kSingular = false;
  static constexpr bool kIsMessage = false;
  static constexpr auto kGet = get;
  const char* name;
};

// A repeated field of messages.
template <class M, class T, const google::protobuf::RepeatedPtrField<T>& (M::*get)() const>
struct Messages {
  using Value = T;
  static constexpr bool kSingular = false;
  static constexpr bool kIsMessage = true;
  static constexpr auto kGet = get;
  const char* name;
};

}  // namespace zorpb
