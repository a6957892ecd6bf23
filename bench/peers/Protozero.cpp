#include <protozero/basic_pbf_writer.hpp>
#include <protozero/buffer_fixed.hpp>
#include <protozero/exception.hpp>
#include <protozero/pbf_reader.hpp>

#include <algorithm>
#include <iterator>

#include "FieldsByHand.h"
#include "Peers.h"

namespace {

using protozero::pbf_reader;
using Writer = protozero::basic_pbf_writer<protozero::fixed_size_buffer_adaptor>;
using zorbench::Engine;

void take(pbf_reader& reader, int32_t& to) { to = reader.get_sint32(); }
void take(pbf_reader& reader, int16_t& to) { to = static_cast<int16_t>(reader.get_sint32()); }

template <std::size_t n>
void takePacked(pbf_reader& reader, int32_t (&to)[n]) {
  const auto values = reader.get_packed_sint32();
  int32_t* next = to;
  for (auto value = values.begin(); value != values.end() && next != std::end(to); ++value) {
    *next++ = *value;
  }
}

// The elements of an unpacked list come one by one, and next to each other. A list that comes
// packed all the same is taken, too, as the format demands.
template <std::size_t n>
void takeTable(pbf_reader& reader, int32_t (&to)[n], std::size_t& filled) {
  if (reader.wire_type() == protozero::pbf_wire_type::length_delimited) {
    for (const int32_t value : reader.get_packed_sint32()) {
      if (filled < n) to[filled++] = value;
    }
    return;
  }
  const int32_t value = reader.get_sint32();
  if (filled < n) to[filled++] = value;
}

#define CLEAR(number, field) to.field = 0;
#define TAKE(number, field) \
  case number:              \
    take(reader, to.field); \
    break;
#define TAKE_PACKED(number, field) \
  case number:                     \
    takePacked(reader, to.field);  \
    break;
#define TAKE_TABLE(number, field)                     \
  case number:                                        \
    takeTable(reader, to.field, filled[number - 22]); \
    break;
#define ADD(number, field) writer.add_sint32(number, from.field);
#define ADD_PACKED(number, field) \
  writer.add_packed_sint32(number, std::begin(from.field), std::end(from.field));
#define ADD_TABLE(number, field) \
  for (const int32_t value : from.field) writer.add_sint32(number, value);

// A block of scalars and packed lists.
#define BLOCK(LIST, Struct)                  \
  void read(pbf_reader reader, Struct& to) { \
    LIST(CLEAR, CLEAR, BENCH_NOTHING)        \
    while (reader.next()) {                  \
      switch (reader.tag()) {                \
        LIST(TAKE, TAKE, TAKE_PACKED)        \
        default:                             \
          reader.skip();                     \
      }                                      \
    }                                        \
  }                                          \
  void write(Writer writer, const Struct& from) { LIST(ADD, ADD, ADD_PACKED) }

BLOCK(BENCH_IMM3D, _zorImm3dApiCtrl)
BLOCK(BENCH_EXPANSE, _zorExpanseApiCtrl)
BLOCK(BENCH_DEEP, _zorDeepApiCtrl)
BLOCK(BENCH_XEQ, _zorXeqApiCtrl)
BLOCK(BENCH_CONTOUR2, _zorContour2ApiCtrl)
BLOCK(BENCH_GEQ10B, _zorGeq10bApiCtrl)
BLOCK(BENCH_ORB, _zorOrbApiCtrl)

void write(Writer writer, const _zorOnyxFaderInfo& from) { BENCH_FADER_INFO(ADD, ADD, ADD_PACKED) }

void read(pbf_reader reader, _zorVantixApiCtrl& to) {
  BENCH_VANTIX(CLEAR, CLEAR, BENCH_NOTHING)
  while (reader.next()) {
    switch (reader.tag()) {
      BENCH_VANTIX(TAKE, TAKE, BENCH_NOTHING)
      case 1:
        read(reader.get_message(), to.imm3d);
        break;
      case 2:
        read(reader.get_message(), to.expanse);
        break;
      case 3:
        read(reader.get_message(), to.deep);
        break;
      default:
        reader.skip();
    }
  }
}

void write(Writer writer, const _zorVantixApiCtrl& from) {
  write(Writer(writer, 1), from.imm3d);
  write(Writer(writer, 2), from.expanse);
  write(Writer(writer, 3), from.deep);
  BENCH_VANTIX(ADD, ADD, BENCH_NOTHING)
}

void read(pbf_reader reader, _zorXeqApiCoeff& to) {
  auto* const words = reinterpret_cast<int32_t*>(&to);
  std::size_t filled = 0;
  while (reader.next(4)) {
    for (const int32_t value : reader.get_packed_sint32()) {
      if (filled < sizeof(to) / sizeof(int32_t)) words[filled++] = value;
    }
  }
}

void write(Writer writer, const _zorXeqApiCoeff& from) {
  const auto* const words = reinterpret_cast<const int32_t*>(&from);
  writer.add_string(1, zorbench::kNoUuid);
  writer.add_sint32(2, zorbench::kSampleRateHz);
  writer.add_packed_sint32(4, words, words + sizeof(from) / sizeof(int32_t));
}

void read(pbf_reader reader, _zorOnyxHpfApiCoeff& to) {
  to.order = 0;
  while (reader.next(5)) takePacked(reader, to.coeffs);
}

void read(pbf_reader reader, Engine& to) {
  BENCH_POSTMIX_CONTROLS(CLEAR, CLEAR, BENCH_NOTHING)
  std::size_t filled[4] = {};
  while (reader.next()) {
    switch (reader.tag()) {
      BENCH_POSTMIX_CONTROLS(TAKE, TAKE, TAKE_PACKED)
      BENCH_POSTMIX_TABLES(TAKE_TABLE)
      case 11:
        read(reader.get_message(), to.vantix);
        break;
      case 12:
        read(reader.get_message(), to.geq10b);
        break;
      case 13:
        read(reader.get_message(), to.xeq);
        break;
      case 14:
        read(reader.get_message(), to.contour2);
        break;
      case 15:
        read(reader.get_message(), to.orb);
        break;
      case 18:
        read(reader.get_message(), to.hpf_coef);
        break;
      case 19:
        read(reader.get_message(), to.xeq_coef);
        break;
      default:
        reader.skip();
    }
  }
}

bool toStruct(const std::string& bytes, Engine& to) {
  try {
    read(pbf_reader(bytes), to);
    return true;
  } catch (const protozero::exception&) {
    return false;
  }
}

std::size_t toBytes(const Engine& from, uint8_t* to, std::size_t capacity) {
  protozero::fixed_size_buffer_adaptor buffer(reinterpret_cast<char*>(to), capacity);
  try {
    Writer writer(buffer);
    BENCH_POSTMIX_CONTROLS(ADD, ADD, ADD_PACKED)
    write(Writer(writer, 11), from.vantix);
    write(Writer(writer, 12), from.geq10b);
    write(Writer(writer, 13), from.xeq);
    write(Writer(writer, 14), from.contour2);
    write(Writer(writer, 15), from.orb);
    write(Writer(writer, 19), from.xeq_coef);
    write(Writer(writer, 21), from.fader_info);
    BENCH_POSTMIX_TABLES(ADD_TABLE)
  } catch (const std::length_error&) {
    return 0;
  }
  return buffer.size();
}

}  // namespace

const zorbench::Peer zorbench::kProtozero = {"protozero by hand", toStruct, toBytes};
