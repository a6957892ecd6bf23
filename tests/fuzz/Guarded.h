// A struct between what must not be touched: right behind it begins an unreadable page, before it
// lie bytes of a known pattern, and before those another unreadable page.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

#include "Fuzz.h"

namespace zortest {

struct Range {
  std::size_t begin;
  std::size_t end;
};

template <class S>
class Guarded {
 public:
  Guarded() {
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    room_ = (sizeof(S) + page - 1) / page * page;
    void* pages = ::mmap(nullptr, room_ + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    require(pages != MAP_FAILED, "memory is to be had");
    start_ = static_cast<unsigned char*>(pages) + page;
    require(::mprotect(start_, room_, PROT_READ | PROT_WRITE) == 0, "memory can be used");
  }
  Guarded(const Guarded&) = delete;
  Guarded& operator=(const Guarded&) = delete;
  // The pages live as long as the program: a target uses the same ones for every input.
  ~Guarded() = default;

  S& fill(unsigned char pattern) {
    pattern_ = pattern;
    std::memset(start_, pattern, room_);
    return get();
  }
  S& get() { return *reinterpret_cast<S*>(bytes()); }

  // Whether all is as filled before the struct and in these ranges of it.
  void requireFilled(const std::vector<Range>& ranges) {
    const auto isFilled = [this](unsigned char byte) { return byte == pattern_; };
    require(std::all_of(start_, bytes(), isFilled), "no byte before the struct changes");
    for (const Range& range : ranges) {
      require(std::all_of(bytes() + range.begin, bytes() + range.end, isFilled),
              "no byte outside the members changes");
    }
  }

 private:
  unsigned char* bytes() { return start_ + room_ - sizeof(S); }

  std::size_t room_ = 0;
  unsigned char* start_ = nullptr;
  unsigned char pattern_ = 0;
};

}  // namespace zortest
