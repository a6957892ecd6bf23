#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <new>

#include "Roads.h"
#include "Subjects.h"
#include "ZorPbCheck.h"
#include "peers/Peers.h"

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

namespace zorbench {
namespace {

void count(const Input& input, const std::string& road, const std::function<void()>& body,
           Table& table) {
  body();  // what the first run makes for good is not the road's
  counted = {};
  live = 0;
  counting = true;
  body();
  counting = false;
  table.heap(input.name, road, counted);
}

}  // namespace

void addHeap(const Input& input, Table& table) {
  const auto to = std::make_unique<Engine>();
  std::vector<uint8_t> bytes(kBytesCapacity);
  count(
      input, "struct to message", [&] { roads::structToMessage(*input.engine); }, table);
  count(
      input, "message to struct", [&] { roads::messageToStruct(input.message, *to); }, table);
  count(
      input, "bare parse", [&] { roads::bareParse(input.bytes); }, table);
  count(
      input, "bytes to struct", [&] { roads::bytesToStruct(input.bytes, *to); }, table);
  count(
      input, "struct to bytes", [&] { roads::structToBytes(*input.engine, bytes.data()); }, table);
  count(
      input, "check: findings", [&] { ZorPbCheck::findings(input.message); }, table);
  for (const Peer* peer : {&kProtozero, &kNanopb, &kProtobufC}) {
    count(
        input, std::string("bytes to struct, ") + peer->name,
        [&] { peer->toStruct(input.bytes, *to); }, table);
    count(
        input, std::string("struct to bytes, ") + peer->name,
        [&] { peer->toBytes(*input.engine, bytes.data(), bytes.size()); }, table);
  }
}

}  // namespace zorbench
