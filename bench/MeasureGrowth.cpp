#include <memory>

#include "Roads.h"
#include "Subjects.h"
#include "peers/Peers.h"

namespace zorbench {

// From a struct there is no growth: it has every entry of every table.
void addGrowth(const std::vector<Input>& tables, Table& table) {
  const auto to = std::make_shared<Engine>();
  for (const Input& input : tables) {
    const Input* const in = &input;
    table.measure(in->name, "parse", [in](benchmark::State& state) {
      for (auto _ : state) roads::parse(in->bytes);
    });
    table.measure(in->name, "message to struct", [in, to](benchmark::State& state) {
      for (auto _ : state) roads::messageToStruct(in->message, *to);
    });
    table.measure(in->name, "bytes to struct", [in, to](benchmark::State& state) {
      for (auto _ : state) roads::bytesToStruct(in->bytes, *to);
    });
    table.measure(in->name, "bytes to struct, protozero by hand",
                  [in, to](benchmark::State& state) {
                    for (auto _ : state)
                      benchmark::DoNotOptimize(kProtozero.toStruct(in->bytes, *to));
                  });
    table.compare(in->name, "message to struct", "parse");
    table.compare(in->name, "bytes to struct", "parse");
    table.compare(in->name, "bytes to struct", "bytes to struct, protozero by hand");
  }
}

}  // namespace zorbench
