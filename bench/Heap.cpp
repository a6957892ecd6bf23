#include "Heap.h"

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

// What has been allocated while counting; the program has one thread.
bool counting = false;
zorbench::Table::Heap counted;
std::ptrdiff_t live = 0;

void* allocate(std::size_t size) noexcept {
  void* const block = std::malloc(size);
  if (counting && block != nullptr) {
    const std::size_t usable = malloc_usable_size(block);
    ++counted.allocations;
    counted.bytes += usable;
    live += static_cast<std::ptrdiff_t>(usable);
    counted.peak =
        std::max(counted.peak, static_cast<std::size_t>(std::max<std::ptrdiff_t>(live, 0)));
  }
  return block;
}

void release(void* block) noexcept {
  if (counting) live -= static_cast<std::ptrdiff_t>(malloc_usable_size(block));
  std::free(block);
}

}  // namespace

// Not inlined, because a compiler that sees both the block and its release takes them for a pair
// that does not match.
[[gnu::noinline]] void* operator new(std::size_t size) {
  void* const block = allocate(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return allocate(size);
}
[[gnu::noinline]] void operator delete(void* block) noexcept { release(block); }
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept { release(block); }

zorbench::Table::Heap zorbench::heapOf(const std::function<void()>& body) {
  body();  // what the first run makes for good is not the body's
  counted = {};
  live = 0;
  counting = true;
  body();
  counting = false;
  return counted;
}
