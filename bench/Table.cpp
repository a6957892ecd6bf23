#include "Table.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

namespace zorbench {
namespace {

// Keeps every repetition's time, by the name of its road.
class Collector : public benchmark::BenchmarkReporter {
 public:
  explicit Collector(std::map<std::string, std::vector<double>>& times) : times_(times) {}

  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      times_[run.run_name.str()].push_back(run.GetAdjustedCPUTime());
    }
  }

 private:
  std::map<std::string, std::vector<double>>& times_;
};

constexpr int kInputWidth = 17;
constexpr int kRoadWidth = 36;
constexpr int kNumberWidth = 12;

}  // namespace

void Table::compare(const std::string& input, const std::string& road, const std::string& base,
                    double target) {
  ratios_.push_back({{input, road}, base, target});
}

void Table::heap(const std::string& input, const std::string& road, const Heap& heap) {
  heaps_.push_back({{input, road}, heap});
}

void Table::run() {
  Collector collector(times_);
  benchmark::RunSpecifiedBenchmarks(&collector);
}

double Table::median(const Key& road) const {
  const auto found = times_.find(road.first + "/" + road.second);
  if (found == times_.end()) return 0;
  auto times = found->second;
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

double Table::ratio(const Ratio& row) const {
  const double base = median({row.road.first, row.base});
  return base > 0 ? median(row.road) / base : 0;
}

void Table::printTime(const Key& road, std::ostream& os) const {
  os << std::left << std::setw(kInputWidth) << road.first << std::setw(kRoadWidth) << road.second
     << std::right << std::setw(kNumberWidth) << std::setprecision(1) << median(road);
  bool first = true;
  for (const Ratio& row : ratios_) {
    if (row.road != road || ratio(row) <= 0) continue;
    if (!first) os << "\n" << std::setw(kInputWidth + kRoadWidth + kNumberWidth) << "";
    first = false;
    os << std::right << std::setw(kNumberWidth) << std::setprecision(ratio(row) < 0.1 ? 4 : 2)
       << ratio(row) << "  " << row.base;
    if (row.target > 0) {
      os << std::setprecision(2) << ", at most " << row.target
         << (ratio(row) <= row.target ? ": met" : ": MISSED");
    }
  }
  os << "\n";
}

void Table::print(std::ostream& os) const {
  os << std::left << std::setw(kInputWidth) << "input" << std::setw(kRoadWidth) << "road"
     << std::right << std::setw(kNumberWidth) << "ns" << std::setw(kNumberWidth) << "ratio"
     << "  to\n"
     << std::fixed;
  for (const Key& road : order_) {
    if (median(road) > 0) printTime(road, os);
  }

  os << "\n"
     << std::left << std::setw(kInputWidth) << "input" << std::setw(kRoadWidth) << "road"
     << std::right << std::setw(kNumberWidth) << "allocations" << std::setw(kNumberWidth) << "bytes"
     << std::setw(kNumberWidth) << "peak bytes"
     << "\n";
  for (const auto& [road, heap] : heaps_) {
    os << std::left << std::setw(kInputWidth) << road.first << std::setw(kRoadWidth) << road.second
       << std::right << std::setw(kNumberWidth) << heap.allocations << std::setw(kNumberWidth)
       << heap.bytes << std::setw(kNumberWidth) << heap.peak << "\n";
  }
}

void Table::writeCsv(std::ostream& os) const {
  os << "input,road,nanoseconds,base,ratio,target\n";
  for (const Key& road : order_) {
    if (median(road) <= 0) continue;
    os << std::quoted(road.first) << "," << std::quoted(road.second) << "," << median(road)
       << ",,,\n";
  }
  for (const Ratio& row : ratios_) {
    if (ratio(row) <= 0) continue;
    os << std::quoted(row.road.first) << "," << std::quoted(row.road.second) << ","
       << median(row.road) << "," << std::quoted(row.base) << "," << ratio(row) << ",";
    if (row.target > 0) os << row.target;
    os << "\n";
  }
  os << "\ninput,road,allocations,bytes,peak bytes\n";
  for (const auto& [road, heap] : heaps_) {
    os << std::quoted(road.first) << "," << std::quoted(road.second) << "," << heap.allocations
       << "," << heap.bytes << "," << heap.peak << "\n";
  }
}

}  // namespace zorbench
