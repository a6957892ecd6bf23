// Copies between the C structs that a peer generates and the engine's, block by block. To be
// included once in a peer's source, after PEER_COUNT(message, list), the member that holds the
// number of a list's elements, and PEER_SET_LIST(number, list), which gives a message a struct's
// whole list.
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "FieldsByHand.h"
#include "ZorEngineStructs.h"

namespace zorbench {

// At most n elements: what the engine's array holds.
template <class Count, std::size_t n>
void takeList(const int32_t* from, Count count, int32_t (&to)[n]) {
  std::copy_n(from, std::min(static_cast<std::size_t>(count), n), to);
}

#define TAKE(number, field) to.field = static_cast<decltype(to.field)>(from.field);
#define TAKE_LIST(number, field) takeList(from.field, PEER_COUNT(from, field), to.field);
#define SET(number, field) to.field = from.field;
#define SET_OPTIONAL(number, field) \
  to.has_##field = true;            \
  to.field = from.field;

#define BLOCK(LIST, name)                            \
  template <class Message, class Struct>             \
  void take##name(const Message& from, Struct& to) { \
    LIST(TAKE, TAKE, TAKE_LIST)                      \
  }                                                  \
  template <class Struct, class Message>             \
  void set##name(const Struct& from, Message& to) {  \
    LIST(SET, SET_OPTIONAL, PEER_SET_LIST)           \
  }

BLOCK(BENCH_IMM3D, Imm3d)
BLOCK(BENCH_EXPANSE, Expanse)
BLOCK(BENCH_DEEP, Deep)
BLOCK(BENCH_VANTIX, Vantix)
BLOCK(BENCH_XEQ, Xeq)
BLOCK(BENCH_CONTOUR2, Contour2)
BLOCK(BENCH_GEQ10B, Geq10b)
BLOCK(BENCH_ORB, Orb)

template <class Struct, class Message>
void setFaderInfo(const Struct& from, Message& to) {
  BENCH_FADER_INFO(SET, SET_OPTIONAL, PEER_SET_LIST)
}

// What the post-mix stage has of its own.
template <class Message, class Struct>
void takePostmix(const Message& from, Struct& to) {
  BENCH_POSTMIX_CONTROLS(TAKE, TAKE, TAKE_LIST)
  BENCH_POSTMIX_TABLES(TAKE_LIST)
}
template <class Struct, class Message>
void setPostmix(const Struct& from, Message& to) {
  BENCH_POSTMIX_CONTROLS(SET, SET_OPTIONAL, PEER_SET_LIST)
  BENCH_POSTMIX_TABLES(PEER_SET_LIST)
}

inline constexpr std::size_t kXeqWords = sizeof(_zorXeqApiCoeff) / sizeof(int32_t);

template <class Count>
void takeXeqCoef(const int32_t* from, Count count, _zorXeqApiCoeff& to) {
  std::copy_n(from, std::min(static_cast<std::size_t>(count), kXeqWords),
              reinterpret_cast<int32_t*>(&to));
}

template <class Message>
void takeHpfCoef(const Message& from, _zorOnyxHpfApiCoeff& to) {
  to.order = 0;
  TAKE_LIST(5, coeffs)
}

}  // namespace zorbench
