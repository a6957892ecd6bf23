// Runs a fuzz target over files, and over all files in folders, without a fuzzer.
#include <google/protobuf/stubs/logging.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "Fuzz.h"

namespace {

namespace fs = std::filesystem;

// The bytes are held at their exact size, so that a byte past them is out of bounds.
void replay(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
  const std::vector<uint8_t> exact(bytes.begin(), bytes.end());
  zortest::runOne({exact.data(), exact.size()});
}

}  // namespace

int main(int argc, char** argv) {
  google::protobuf::SetLogHandler(nullptr);
  int count = 0;
  for (int i = 1; i < argc; ++i) {
    const bool isFolder = fs::is_directory(argv[i]);
    if (!isFolder) replay(argv[i]), ++count;
    if (!isFolder) continue;
    const int before = count;
    for (const auto& entry : fs::directory_iterator(argv[i])) replay(entry.path()), ++count;
    if (count == before) return std::cerr << argv[i] << ": holds no input\n", 1;
  }
  std::cout << count << " inputs\n";
  return count > 0 ? 0 : 1;
}
