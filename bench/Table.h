// The one table that the program prints: what was measured in one run, each row beside another one.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zorbench {

class Table {
 public:
  // Has body, a function that takes a benchmark::State, measured under input/road.
  template <class Body>
  void measure(const std::string& input, const std::string& road, Body body) {
    benchmark::RegisterBenchmark((input + "/" + road).c_str(), std::move(body));
    order_.emplace_back(input, road);
  }
  // Asks for the ratio of a road to a base, both of the same input; at most target when that is not
  // 0.
  void compare(const std::string& input, const std::string& road, const std::string& base,
               double target = 0);
  // What a road allocates.
  struct Heap {
    std::size_t allocations = 0;
    std::size_t bytes = 0;
    std::size_t peak = 0;
  };
  void heap(const std::string& input, const std::string& road, const Heap& heap);

  // Runs all that is to be measured, each road several times, in an order drawn anew each time.
  void run();
  void print(std::ostream& os) const;
  // The same as comma-separated values, for other programs.
  void writeCsv(std::ostream& os) const;

 private:
  using Key = std::pair<std::string, std::string>;
  struct Ratio {
    Key road;
    std::string base;
    double target = 0;
  };
  // Nanoseconds of processor time.
  double median(const Key& road) const;
  double ratio(const Ratio& row) const;
  void printTime(const Key& road, std::ostream& os) const;

  std::vector<Key> order_;
  std::vector<Ratio> ratios_;
  std::vector<std::pair<Key, Heap>> heaps_;
  std::map<std::string, std::vector<double>> times_;
};

}  // namespace zorbench
