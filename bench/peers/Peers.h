// What a user would pick instead of the library: other ways from the bytes of a post-mix message to
// the engine struct, and back. They keep the library's contract: in a block that the message has,
// an absent scalar becomes 0; what a message lacks stays as it was in the struct.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "ZorEngineStructs.h"

namespace zorbench {

using Engine = _zorOnyxPostmixApiCtrlCoeffsEx;

// What a message built from a struct says of the equalizer's coefficients.
constexpr char kNoUuid[] = "00000000-0000-0000-0000-000000000000";
constexpr int32_t kSampleRateHz = 48000;

struct Peer {
  const char* name;
  // Fills to from bytes; false when they are no message.
  bool (*toStruct)(const std::string& bytes, Engine& to);
  // Writes at most capacity bytes and returns their number; 0 when they are too few.
  std::size_t (*toBytes)(const Engine& from, uint8_t* to, std::size_t capacity);
};

// A reader and a writer by hand, straight between bytes and struct.
extern const Peer kProtozero;
// Generated for lists of fixed capacity in static storage, then copied.
extern const Peer kNanopb;
// Generated with allocated lists, then copied. It allocates through operator new.
extern const Peer kProtobufC;

// The parse of a post-mix message by what the protobuf compiler generates, unchanged; false when
// the bytes are no message. The floor of every road that goes by protobuf.
bool plainParse(const std::string& bytes);

}  // namespace zorbench
