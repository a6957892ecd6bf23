// How long loading a library takes, from dlopen to its return: each time in a process of its own,
// the libraries by turns. Prints the medians, and their ratio to the last one's.
//
//   zorcs_load RUNS RUNTIME LIBRARY...
//
// RUNTIME is loaded first, as in a process that has it already; "-" loads it with the library.
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

namespace {

[[noreturn]] void fail(const std::string& message) {
  std::cerr << "zorcs_load: " << message << "\n";
  std::exit(1);
}

void load(const std::string& library) {
  if (dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL) == nullptr) fail(dlerror());
}

double microsecondsToLoad(const std::string& runtime, const std::string& library) {
  int ends[2];
  if (pipe(ends) != 0) fail("no pipe");
  const pid_t child = fork();
  if (child < 0) fail("no process");
  if (child == 0) {
    if (runtime != "-") load(runtime);
    const auto start = std::chrono::steady_clock::now();
    load(library);
    const std::chrono::duration<double, std::micro> taken =
        std::chrono::steady_clock::now() - start;
    const double microseconds = taken.count();
    const bool written = write(ends[1], &microseconds, sizeof(microseconds)) > 0;
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  double microseconds = 0;
  const bool got = read(ends[0], &microseconds, sizeof(microseconds)) == sizeof(microseconds);
  close(ends[0]);
  int status = 0;
  if (waitpid(child, &status, 0) != child || status != 0 || !got) fail(library + ": not loaded");
  return microseconds;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  const int runs = argc > 3 ? std::atoi(argv[1]) : 0;
  if (runs <= 0) {
    std::cerr << "usage: zorcs_load RUNS RUNTIME LIBRARY...\n";
    return 2;
  }
  const std::vector<std::string> libraries(argv + 3, argv + argc);
  std::vector<std::vector<double>> times(libraries.size());
  for (int run = 0; run < runs; ++run) {
    for (std::size_t i = 0; i < libraries.size(); ++i) {
      times[i].push_back(microsecondsToLoad(argv[2], libraries[i]));
    }
  }
  const double base = median(times.back());
  for (std::size_t i = 0; i < libraries.size(); ++i) {
    std::cout << std::fixed << std::setprecision(1) << std::setw(9) << median(times[i]) << " us"
              << std::setprecision(2) << std::setw(7) << median(times[i]) / base << "  "
              << libraries[i].substr(libraries[i].rfind('/') + 1) << "\n";
  }
  return 0;
}
