// What the roads are measured on: post-mix messages, as bytes and as the structs that they give.
// The post-mix stage stands for the whole: it holds 59 of the 60 KB, and the pre-mix wrapper leaves
// its children behind by contract, so that converting again and again would measure a growing heap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ZorEngineStructs.h"
#include "onyx.pb.h"

namespace zorbench {

using com::zor::onyx::fxp_std::Postmix;
using Engine = _zorOnyxPostmixApiCtrlCoeffsEx;

struct Input {
  std::string name;
  std::string bytes;
  Postmix message;
  std::unique_ptr<Engine> engine;
};

// Enough for any struct written as a message.
constexpr std::size_t kBytesCapacity = std::size_t{128} * 1024;

// The message that bytes hold; ends the program when they hold none.
Postmix parse(const std::string& bytes);
// The headphone example with all its tables; every list full and every scalar set, with random
// values of 32 bits; a few scalars alone.
std::vector<Input> makeInputs(const std::string& headphonesFile);
// The four unpacked tables alone, at percent of their capacities, filled with values from.
Input makeTables(const Postmix& from, int percent);

// Ends the program with a message when a peer does not give the very bytes of the struct that the
// library gives, or when its own bytes do not read back to what it was given.
void proveEqual(const Input& input);

// Ends the program with a message.
[[noreturn]] void fail(const std::string& message);

}  // namespace zorbench
