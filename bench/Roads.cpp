#include "Roads.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <new>

#include "ZorPbPostmix.h"

namespace zorbench {
namespace {

// Room for a struct, not initialised: a floor copies, and does nothing else.
class Room {
 public:
  Room() : bytes_(::operator new(sizeof(Engine))) {}
  ~Room() { ::operator delete(bytes_); }
  Room(const Room&) = delete;
  Room& operator=(const Room&) = delete;

  void* take(const void* from) {
    std::memcpy(bytes_, from, sizeof(Engine));
    benchmark::DoNotOptimize(bytes_);
    benchmark::ClobberMemory();
    return bytes_;
  }

 private:
  void* bytes_;
};

void put(const void* from, Engine& to) {
  std::memcpy(&to, from, sizeof(Engine));
  benchmark::ClobberMemory();
}

}  // namespace

void roads::structToMessage(const Engine& from) {
  const ZorPbPostmix wrapper(from);
  benchmark::DoNotOptimize(wrapper.msg_);
}

void roads::messageToStruct(const Postmix& from, Engine& to) {
  ZorPbPostmix(&from).populateStruct(to);
}

void roads::bytesToStruct(const std::string& bytes, Engine& to) {
  Postmix message;
  if (!message.ParsePartialFromString(bytes)) fail("the bytes of an input are no message");
  ZorPbPostmix(&message).populateStruct(to);
}

std::size_t roads::structToBytes(const Engine& from, uint8_t* to) {
  const ZorPbPostmix wrapper(from);
  if (!wrapper.msg_->SerializePartialToArray(to, static_cast<int>(kBytesCapacity))) return 0;
  return static_cast<std::size_t>(wrapper.msg_->GetCachedSize());
}

void roads::parse(const std::string& bytes) {
  Postmix message;
  if (!message.ParsePartialFromString(bytes)) fail("the bytes of an input are no message");
  benchmark::DoNotOptimize(message);
}

void roads::parseAndCopy(const std::string& bytes) {
  Postmix message;
  if (!message.ParsePartialFromString(bytes)) fail("the bytes of an input are no message");
  const auto copy = std::make_unique<Postmix>(message);
  benchmark::DoNotOptimize(copy.get());
}

void floors::copyOnce(const Engine& from) {
  Room room;
  benchmark::DoNotOptimize(room.take(&from));
}

void floors::copyThrough(const Engine& from, Engine& to) {
  Room room;
  put(room.take(&from), to);
}

void floors::copyTwice(const Engine& from, Engine& to) {
  Room room;
  Room second;
  put(second.take(room.take(&from)), to);
}

}  // namespace zorbench
