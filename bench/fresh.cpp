// The road from bytes to struct beside the parse, in processes that have done nothing else. There
// the heap ends where the road's own memory does, so that the allocator may give it back to the
// system after each run and take it again; in a program that holds more it mostly does not.
//
//   zorcs_fresh HEADPHONES
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <protozero/exception.hpp>
#include <protozero/pbf_reader.hpp>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <string>

#include "Roads.h"
#include "peers/Peers.h"

namespace {

constexpr std::size_t kProcesses = 15;
constexpr int kRuns = 500;

struct Cost {
  double nanoseconds = 0;
  double pageFaults = 0;
};

// Not on the heap, of which each process must have as good as nothing.
std::array<char, std::size_t{256} * 1024> file;
zorbench::Engine engine;

void bareParse(const std::string& bytes) { zorbench::plainParse(bytes); }
void parse(const std::string& bytes) { zorbench::roads::parse(bytes); }
void convert(const std::string& bytes) { zorbench::roads::bytesToStruct(bytes, engine); }

int64_t pageFaults() {
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_minflt;
}

Cost measure(void (*road)(const std::string&), const std::string& bytes) {
  for (int i = 0; i < 20; ++i) road(bytes);
  const auto faultsBefore = pageFaults();
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < kRuns; ++i) road(bytes);
  const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
  return {taken.count() / kRuns, static_cast<double>(pageFaults() - faultsBefore) / kRuns};
}

Cost measureInProcess(void (*road)(const std::string&), const std::string& bytes) {
  int ends[2];
  if (pipe(ends) != 0) zorbench::fail("no pipe");
  const pid_t child = fork();
  if (child < 0) zorbench::fail("no process");
  if (child == 0) {
    const Cost cost = measure(road, bytes);
    _exit(write(ends[1], &cost, sizeof(cost)) == sizeof(cost) ? 0 : 1);
  }
  close(ends[1]);
  Cost cost;
  const bool got = read(ends[0], &cost, sizeof(cost)) == sizeof(cost);
  close(ends[0]);
  int status = 0;
  if (waitpid(child, &status, 0) != child || status != 0 || !got) zorbench::fail("no result");
  return cost;
}

// The one in the middle by time.
Cost median(std::array<Cost, kProcesses> costs) {
  std::sort(costs.begin(), costs.end(),
            [](const Cost& a, const Cost& b) { return a.nanoseconds < b.nanoseconds; });
  return costs[kProcesses / 2];
}

double print(const char* road, const Cost& cost) {
  std::cout << std::left << std::setw(20) << road << std::right << std::fixed
            << std::setprecision(1) << std::setw(12) << cost.nanoseconds << " ns" << std::setw(8)
            << cost.pageFaults << " page faults\n";
  return cost.nanoseconds;
}

std::string readPostmix(const char* name) {
  std::FILE* const input = std::fopen(name, "rb");
  if (input == nullptr) zorbench::fail(std::string(name) + ": cannot be read");
  std::setvbuf(input, nullptr, _IONBF, 0);
  const std::size_t length = std::fread(file.data(), 1, file.size(), input);
  std::fclose(input);
  try {
    protozero::pbf_reader configuration(file.data(), length);
    if (configuration.next(3)) return configuration.get_string();
  } catch (const protozero::exception&) {
    // Told below.
  }
  zorbench::fail(std::string(name) + ": no post-mix stage");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: zorcs_fresh HEADPHONES\n";
    return 2;
  }
  const std::string bytes = readPostmix(argv[1]);

  // By turns, so that what else the machine does meets all alike.
  constexpr std::array kRoads = {bareParse, parse, convert};
  std::array<std::array<Cost, kProcesses>, kRoads.size()> costs;
  for (std::size_t i = 0; i < kProcesses; ++i) {
    for (std::size_t road = 0; road < kRoads.size(); ++road) {
      costs[road][i] = measureInProcess(kRoads[road], bytes);
    }
  }
  const double converted = print("bytes to struct", median(costs[2]));
  const double parsed = print("parse", median(costs[1]));
  const double bare = print("bare parse", median(costs[0]));
  std::cout << "ratio to the parse " << std::setprecision(2) << converted / parsed
            << ", to the bare parse " << converted / bare << "\n";
  return 0;
}
