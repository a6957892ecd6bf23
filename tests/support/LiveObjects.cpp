#include "LiveObjects.h"

#include <cstdlib>
#include <new>

namespace zortest {
namespace {

// Stands before each block, in a ring of all live ones. The tests run on one thread.
struct alignas(alignof(std::max_align_t)) Header {
  Header* previous;
  Header* next;
};

Header ring = {&ring, &ring};
std::size_t liveBlocks = 0;
int untilFailure = -1;

void release(Header* block) {
  block->previous->next = block->next;
  block->next->previous = block->previous;
  --liveBlocks;
  std::free(block);
}

}  // namespace

Census LiveObjects::census(const void* mark) const {
  Census found;
  for (Header* block = ring.next; block != &ring && block + 1 != mark; block = block->next) {
    const void* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(block + 1), sizeof(table));
    const auto name = names_.find(table);
    if (name != names_.end()) ++found[name->second];
  }
  return found;
}

std::size_t LiveObjects::blocks() { return liveBlocks; }

void LiveObjects::freeSince(const void* mark) {
  for (bool isMark = false; !isMark;) {
    isMark = ring.next + 1 == mark;
    release(ring.next);  // NOLINT(clang-analyzer-unix.Malloc): each release takes it from the ring
  }
}

void LiveObjects::failAfter(int count) { untilFailure = count; }

}  // namespace zortest

using zortest::Header;
using zortest::liveBlocks;
using zortest::ring;
using zortest::untilFailure;

// Not inlined, because a compiler that sees both the header and its caller takes the block for an
// object of the caller's type.
[[gnu::noinline]] void* operator new(std::size_t size) {
  if (untilFailure >= 0 && untilFailure-- == 0) throw std::bad_alloc();
  // Cleared, and never shorter than a pointer, so that the first word can be read.
  auto* block = static_cast<Header*>(std::calloc(1, sizeof(Header) + size + sizeof(void*)));
  if (block == nullptr) throw std::bad_alloc();
  *block = {&ring, ring.next};
  block->next->previous = block;
  ring.next = block;
  ++liveBlocks;
  return block + 1;
}

[[gnu::noinline]] void operator delete(void* memory) noexcept {
  if (memory != nullptr) zortest::release(static_cast<Header*>(memory) - 1);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return operator new(size);
}
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
  operator delete(memory);
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
