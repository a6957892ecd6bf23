// What the fuzz targets share. A target defines zortest::runOne, for one input; FuzzEntry.cpp gives
// it to the fuzzer, Replay.cpp to files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace zortest {

// The input as a target reads it, byte by byte; zeros past its end.
class Input {
 public:
  Input(const uint8_t* bytes, std::size_t size) : bytes_(bytes), left_(size) {}

  bool isEmpty() const { return left_ == 0; }
  uint8_t next() { return left_ == 0 ? uint8_t{0} : (--left_, *bytes_++); }
  std::string rest() { return {reinterpret_cast<const char*>(bytes_), left_}; }

 private:
  const uint8_t* bytes_;
  std::size_t left_;
};

void runOne(Input input);

// Ends the program where an input shows a fault.
inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

}  // namespace zortest
