#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Heap.h"
#include "Roads.h"
#include "Subjects.h"
#include "ZorPbCheck.h"
#include "peers/Peers.h"

namespace zorbench {

void addHeap(const Input& input, Table& table) {
  const auto to = std::make_unique<Engine>();
  std::vector<uint8_t> bytes(kBytesCapacity);
  const auto count = [&](const std::string& road, const std::function<void()>& body) {
    table.heap(input.name, road, heapOf(body));
  };
  count("struct to message", [&] { roads::structToMessage(*input.engine); });
  count("message to struct", [&] { roads::messageToStruct(input.message, *to); });
  count("bare parse", [&] { plainParse(input.bytes); });
  count("parse", [&] { roads::parse(input.bytes); });
  count("bytes to struct", [&] { roads::bytesToStruct(input.bytes, *to); });
  count("struct to bytes", [&] { roads::structToBytes(*input.engine, bytes.data()); });
  count("check: findings", [&] { ZorPbCheck::findings(input.message); });
  count("check: isSafe", [&] { ZorPbCheck::isSafe(input.message); });
  for (const Peer* peer : {&kProtozero, &kNanopb, &kProtobufC}) {
    const std::string name = peer->name;
    count("bytes to struct, " + name, [&] { peer->toStruct(input.bytes, *to); });
    count("struct to bytes, " + name,
          [&] { peer->toBytes(*input.engine, bytes.data(), bytes.size()); });
  }
}

}  // namespace zorbench
