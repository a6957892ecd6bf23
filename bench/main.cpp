// What the library costs: its roads beside the floor and beside what a user would pick instead, on
// the same bytes, in one run. Prints one table of medians and ratios.
//
//   zorcs_bench HEADPHONES [--csv FILE] [benchmark options]
#include <benchmark/benchmark.h>

#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "Inputs.h"
#include "Subjects.h"
#include "Table.h"

int main(int argc, char** argv) {
  // The repetitions of all roads are mixed, so that what else the machine does meets all alike.
  std::vector<std::string> options = {argv[0], "--benchmark_repetitions=15",
                                      "--benchmark_enable_random_interleaving=true",
                                      "--benchmark_min_time=0.02"};
  options.insert(options.end(), argv + 1, argv + argc);
  std::vector<char*> pointers;
  pointers.reserve(options.size() + 1);
  for (std::string& option : options) pointers.push_back(option.data());
  pointers.push_back(nullptr);
  int count = static_cast<int>(options.size());
  benchmark::Initialize(&count, pointers.data());
  if (count != 2 && !(count == 4 && std::string(pointers[2]) == "--csv")) {
    std::cerr << "usage: zorcs_bench HEADPHONES [--csv FILE] [benchmark options]\n";
    return 2;
  }

  const auto inputs = zorbench::makeInputs(pointers[1]);
  std::vector<zorbench::Input> tables;
  for (const int percent : {1, 10, 100, 1000}) {
    tables.push_back(zorbench::makeTables(inputs.front().message, percent));
  }
  zorbench::Table table;
  for (const auto& input : inputs) {
    zorbench::proveEqual(input);
    zorbench::addRoads(input, table);
    zorbench::addHeap(input, table);
  }
  zorbench::addGrowth(tables, table);
  zorbench::addLeaves(table);
  table.run();
  table.print(std::cout);
  if (count == 4) {
    std::ofstream csv(pointers[3]);
    table.writeCsv(csv);
    csv.close();
    if (!csv) zorbench::fail(std::string(pointers[3]) + ": cannot be written");
  }
  return 0;
}
