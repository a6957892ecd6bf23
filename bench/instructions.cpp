// Runs one road once, after a warm-up, with callgrind counting that one run: instruction counts
// that repeat to the last digit, where times do not.
//
//   zorcs_instructions HEADPHONES ROAD
#include <valgrind/callgrind.h>

#include <cstring>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Inputs.h"
#include "Roads.h"

using zorbench::Engine;

int main(int argc, char** argv) {
  const auto inputs = zorbench::makeInputs(argc > 1 ? argv[1] : "");
  const auto& input = inputs.front();
  const auto to = std::make_unique<Engine>();
  std::vector<uint8_t> bytes(zorbench::kBytesCapacity);
  const std::map<std::string, std::function<void()>> all = {
      {"struct-to-message", [&] { zorbench::roads::structToMessage(*input.engine); }},
      {"message-to-struct", [&] { zorbench::roads::messageToStruct(input.message, *to); }},
      {"bytes-to-struct", [&] { zorbench::roads::bytesToStruct(input.bytes, *to); }},
      {"struct-to-bytes", [&] { zorbench::roads::structToBytes(*input.engine, bytes.data()); }},
      {"parse", [&] { zorbench::roads::parse(input.bytes); }},
  };
  const auto road = all.find(argc == 3 ? argv[2] : "");
  if (road == all.end()) {
    std::cerr << "usage: zorcs_instructions HEADPHONES";
    const char* separator = " ";
    for (const auto& entry : all) {
      std::cerr << separator << entry.first;
      separator = "|";
    }
    std::cerr << "\n";
    return 2;
  }
  // The first run binds functions and fills the allocator's lists.
  for (int i = 0; i < 3; ++i) road->second();
  CALLGRIND_TOGGLE_COLLECT;
  road->second();
  CALLGRIND_TOGGLE_COLLECT;
  return 0;
}
