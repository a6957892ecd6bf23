// Bytes as the files that the command is given: the first says which subcommand and which form, the
// others are the file.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "CommandLine.h"
#include "Fuzz.h"

namespace zortest {
namespace {

namespace fs = std::filesystem;

// A folder in memory where there is one, gone when the program ends.
class Folder {
 public:
  Folder() {
    std::error_code error;
    const fs::path base =
        fs::is_directory("/dev/shm", error) ? "/dev/shm" : fs::temp_directory_path();
    std::string name = (base / "zorcs-fuzz-XXXXXX").string();
    require(::mkdtemp(name.data()) != nullptr, "a folder can be made");
    path_ = name;
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  std::string file(const std::string& name) const { return (path_ / name).string(); }
  auto size() const { return std::distance(fs::directory_iterator(path_), {}); }

 private:
  fs::path path_;
};

struct Run {
  int status;
  std::string out;
  std::string err;
};

// Runs the command in this process. Its exit status is one of four, and whatever goes wrong is
// told.
Run run(const std::vector<std::string>& arguments) {
  std::vector<const char*> argv = {"zorcs"};
  for (const auto& argument : arguments) argv.push_back(argument.c_str());
  std::ostringstream out;
  std::ostringstream err;
  auto* const oldOut = std::cout.rdbuf(out.rdbuf());
  auto* const oldErr = std::cerr.rdbuf(err.rdbuf());
  const int status = runCommandLine(static_cast<int>(argv.size()), argv.data());
  std::cout.rdbuf(oldOut);
  std::cerr.rdbuf(oldErr);

  require(status >= 0 && status <= 3, "the exit status is one of four");
  require(status < 2 || !err.str().empty(), "a run that fails says why");
  std::istringstream lines(err.str());
  for (std::string line; std::getline(lines, line);) {
    require(line.rfind("zorcs: ", 0) == 0, "each line of an error says whose it is");
  }
  return {status, out.str(), err.str()};
}

void write(const std::string& path, const std::string& content) {
  require(std::ofstream(path, std::ios::binary)
              .write(content.data(), static_cast<std::streamsize>(content.size()))
              .good(),
          "a file can be written");
}

// What was built can be read again, and says the same but for what a device would not read either.
void buildAndRead(const std::string& file, const Folder& folder) {
  const std::string built = folder.file("built.binpb");
  fs::remove(built);
  const Run build = run({"build", file, "-o", built});
  if (build.status >= 2) {
    require(!fs::exists(built), "a build that fails leaves no file");
    return;
  }
  const bool isWhole = build.out.find("[unknown-field]") == std::string::npos;
  require(run({"diff", file, built}).status == 0 || !isWhole, "what was built is what was read");
  const std::string again = folder.file("again.txtpb");
  write(again, run({"show", "--full", built}).out);
  require(run({"diff", built, again}).status == 0, "what is shown can be read again");
}

// The images of what the engine takes give a configuration that loses nothing.
void packAndUnpack(const std::string& file, const Folder& folder) {
  const std::string premix = folder.file("premix.img");
  const std::string postmix = folder.file("postmix.img");
  const std::string back = folder.file("back.binpb");
  if (run({"pack", file, "--premix", premix, "--postmix", postmix}).status != 0) return;
  require(run({"unpack", "--premix", premix, "--postmix", postmix, "-o", back}).status == 0,
          "what was packed can be unpacked");
  require(run({"roundtrip", back}).status == 0, "what was unpacked travels without a loss");
}

}  // namespace

void runOne(Input input) {
  static const Folder folder;
  static const std::vector<std::vector<std::string>> reads = {
      {"check"},          {"check", "--json", "--strict"},
      {"show"},           {"show", "--json"},
      {"show", "--full"}, {"show", "--dump"},
      {"roundtrip"},      {"roundtrip", "--json"}};
  static const std::vector<std::string> forms = {"in.txtpb", "in.json", "in.binpb", "in"};
  const uint8_t choice = input.next();
  const std::string file = folder.file(forms[choice % forms.size()]);
  write(file, input.rest());

  const std::size_t chosen = choice / forms.size() % (reads.size() + 4);
  if (chosen < reads.size()) {
    auto arguments = reads[chosen];
    arguments.push_back(file);
    run(arguments);
  } else if (chosen == reads.size()) {
    buildAndRead(file, folder);
  } else if (chosen == reads.size() + 1) {
    packAndUnpack(file, folder);
  } else if (chosen == reads.size() + 2) {
    run({"plot", file, "-o", folder.file("plot.svg")});
  } else {
    run({"unpack", "--premix", file, "-o", folder.file("unpacked.binpb")});
  }
  constexpr auto kMostFiles = 10;
  require(folder.size() <= kMostFiles, "no temporary file stays behind");
}

}  // namespace zortest
