#include <memory>
#include <string>

#include "Roads.h"
#include "Subjects.h"
#include "ZorPbCheck.h"
#include "peers/Peers.h"

namespace zorbench {
namespace {

// The most that a road may cost of what it stands beside, where there is a bound.
constexpr double kStructToMessage = 1.8;
constexpr double kMessageToStruct = 1.4;
constexpr double kBytesToStruct = 1.10;
constexpr double kOfProtozero = 0.95;
constexpr double kOfNanopb = 0.15;
constexpr double kCheck = 0.10;

void addMessages(const Input& input, Table& table) {
  const Input* const in = &input;
  table.measure(in->name, "floor: copy once", [in](benchmark::State& state) {
    for (auto _ : state) floors::copyOnce(*in->engine);
  });
  table.measure(in->name, "struct to message", [in](benchmark::State& state) {
    for (auto _ : state) roads::structToMessage(*in->engine);
  });
  table.compare(in->name, "struct to message", "floor: copy once", kStructToMessage);

  const auto to = std::make_shared<Engine>();
  table.measure(in->name, "floor: copy through", [in, to](benchmark::State& state) {
    for (auto _ : state) floors::copyThrough(*in->engine, *to);
  });
  table.measure(in->name, "floor: copy twice", [in, to](benchmark::State& state) {
    for (auto _ : state) floors::copyTwice(*in->engine, *to);
  });
  table.measure(in->name, "message to struct", [in, to](benchmark::State& state) {
    for (auto _ : state) {
      roads::messageToStruct(in->message, *to);
      benchmark::ClobberMemory();
    }
  });
  table.compare(in->name, "message to struct", "floor: copy through", kMessageToStruct);
  table.compare(in->name, "message to struct", "floor: copy twice");
}

void addToStruct(const Input& input, Table& table) {
  const Input* const in = &input;
  table.measure(in->name, "bare parse", [in](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(plainParse(in->bytes));
  });
  table.measure(in->name, "parse", [in](benchmark::State& state) {
    for (auto _ : state) roads::parse(in->bytes);
  });
  table.measure(in->name, "parse and copy", [in](benchmark::State& state) {
    for (auto _ : state) roads::parseAndCopy(in->bytes);
  });
  const auto to = std::make_shared<Engine>();
  table.measure(in->name, "bytes to struct", [in, to](benchmark::State& state) {
    for (auto _ : state) {
      roads::bytesToStruct(in->bytes, *to);
      benchmark::ClobberMemory();
    }
  });
  table.compare(in->name, "bytes to struct", "bare parse", kBytesToStruct);
  table.compare(in->name, "bytes to struct", "parse");
  table.compare(in->name, "bytes to struct", "parse and copy");
  for (const Peer* peer : {&kProtozero, &kNanopb, &kProtobufC}) {
    const std::string name = std::string("bytes to struct, ") + peer->name;
    table.measure(in->name, name, [in, to, peer](benchmark::State& state) {
      for (auto _ : state) {
        benchmark::DoNotOptimize(peer->toStruct(in->bytes, *to));
        benchmark::ClobberMemory();
      }
    });
    const double target = peer == &kProtozero ? kOfProtozero : peer == &kNanopb ? kOfNanopb : 0;
    table.compare(in->name, "bytes to struct", name, target);
  }
}

void addToBytes(const Input& input, Table& table) {
  const Input* const in = &input;
  const auto bytes = std::make_shared<std::vector<uint8_t>>(kBytesCapacity);
  table.measure(in->name, "struct to bytes", [in, bytes](benchmark::State& state) {
    for (auto _ : state) {
      benchmark::DoNotOptimize(roads::structToBytes(*in->engine, bytes->data()));
    }
  });
  for (const Peer* peer : {&kProtozero, &kNanopb, &kProtobufC}) {
    const std::string name = std::string("struct to bytes, ") + peer->name;
    table.measure(in->name, name, [in, bytes, peer](benchmark::State& state) {
      for (auto _ : state) {
        benchmark::DoNotOptimize(peer->toBytes(*in->engine, bytes->data(), bytes->size()));
      }
    });
    table.compare(in->name, "struct to bytes", name);
  }
}

void addCheck(const Input& input, Table& table) {
  const Input* const in = &input;
  table.measure(in->name, "check: findings", [in](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(ZorPbCheck::findings(in->message));
  });
  table.compare(in->name, "check: findings", "parse", kCheck);
  table.measure(in->name, "check: isSafe", [in](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(ZorPbCheck::isSafe(in->message));
  });
  table.compare(in->name, "check: isSafe", "parse", kCheck);
}

}  // namespace

void addRoads(const Input& input, Table& table) {
  addMessages(input, table);
  addToStruct(input, table);
  addToBytes(input, table);
  addCheck(input, table);
}

}  // namespace zorbench
