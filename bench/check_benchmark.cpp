// What a check costs beside the parse that precedes it, on the same bytes.
//
//   check_benchmark CONFIGURATION [benchmark options]
#include <benchmark/benchmark.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "ZorPbCheck.h"

namespace {

using com::zor::onyx::fxp_std::Onyx;

Onyx parse(const std::string& bytes) {
  Onyx msg;
  if (!msg.ParsePartialFromString(bytes)) std::cerr << "check_benchmark: not a configuration\n";
  return msg;
}

void registerAll(const std::string& bytes) {
  benchmark::RegisterBenchmark("parse", [bytes](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(parse(bytes));
  });
  benchmark::RegisterBenchmark("findings", [msg = parse(bytes)](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(ZorPbCheck::findings(msg));
  });
  benchmark::RegisterBenchmark("isSafe", [msg = parse(bytes)](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(ZorPbCheck::isSafe(msg));
  });
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (argc != 2) {
    std::cerr << "usage: check_benchmark CONFIGURATION [benchmark options]\n";
    return 2;
  }
  std::ifstream file(argv[1], std::ios::binary);
  registerAll({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
