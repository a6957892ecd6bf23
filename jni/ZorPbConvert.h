// The steps that the wrappers' conversions are made of. Private to the library.
#pragma once

#include <google/protobuf/message_lite.h>

#include <memory>
#include <type_traits>
#include <typeinfo>

namespace zorpb {

// What a field list is visited with, one for each direction. Two messages of one type look alike to
// the compiler: told that they are not the same one, it copies a run of scalars at once.
template <class M>
auto loading(const M& __restrict from, M& __restrict to) {
  return [&from, &to](auto field) { field.load(from, to); };
}
template <class S, class M>
auto reading(const S& from, M& to) {
  return [&from, &to](auto field) { field.read(from, to); };
}
template <class M, class S>
auto writing(const M& from, S& to) {
  return [&from, &to](auto field) { field.write(from, to); };
}

// The held message as M; null when there is none or it is of another type. Nothing derives from a
// message class, so that comparing types tells what dynamic_cast would search for.
template <class M>
M* heldAs(google::protobuf::MessageLite* held) {
  static_assert(std::is_final_v<M>);
  return held != nullptr && typeid(*held) == typeid(M) ? static_cast<M*>(held) : nullptr;
}

// Releases the held message before its successor is built.
inline void discard(google::protobuf::MessageLite*& held) {
  delete held;
  held = nullptr;
}

// The three conversions of a wrapper without children.

// The message held before stays behind, unreleased: whoever took msg_ from the wrapper before this
// load, or a parent message that shares it, may still read it.
template <class Fields>
void holdCopy(const typename Fields::Message& from, google::protobuf::MessageLite*& held) {
  auto fresh = std::make_unique<typename Fields::Message>();
  Fields::each(loading(from, *fresh));
  held = fresh.release();
}

template <class Fields>
void holdBuilt(const typename Fields::Struct& from, google::protobuf::MessageLite*& held) {
  discard(held);
  auto fresh = std::make_unique<typename Fields::Message>();
  Fields::each(reading(from, *fresh));
  held = fresh.release();
}

template <class Fields>
void writeOut(google::protobuf::MessageLite* held, typename Fields::Struct& to) {
  if (const auto* msg = heldAs<typename Fields::Message>(held)) Fields::each(writing(*msg, to));
}

// The steps of a composite wrapper.

// Makes slot a child built from a struct. A child that is there goes first, and its message is
// released from the parent's, which must not delete it a second time.
template <class Child, class Parent, class Nested, class S>
void remakeChild(Child*& slot, Parent* parent, Nested* (Parent::*release)(), const S& from) {
  if (slot != nullptr) {
    if (parent != nullptr) (parent->*release)();
    delete slot;
    slot = nullptr;
  }
  slot = new Child(from);
}

// Makes the child's message the parent's nested field: from here on both hold the same object.
template <class Child, class Parent, class Nested>
void handOn(const Child& child, Parent& parent, void (Parent::*setAllocated)(Nested*)) {
  (parent.*setAllocated)(heldAs<Nested>(child.msg_));
}

// Fills the nested struct from the child, if there is one.
template <class Child, class S>
void writeChild(Child* child, S& to) {
  if (child != nullptr) child->populateStruct(to);
}

}  // namespace zorpb
