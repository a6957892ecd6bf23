// What the library does when it is loaded. The two functions of the runtime that registration calls
// are defined here too, and record the calls: the dynamic linker finds the program's own first.
#include <google/protobuf/stubs/common.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "onyx.pb.h"

namespace {

struct Calls {
  std::vector<std::string> verified;
  std::vector<void (*)()> onShutdown;
};

Calls& calls() {
  static Calls recorded;
  return recorded;
}

}  // namespace

namespace google::protobuf::internal {

void VerifyVersion(int headerVersion, int minLibraryVersion, const char* filename) {
  EXPECT_EQ(headerVersion, GOOGLE_PROTOBUF_VERSION);
  EXPECT_EQ(minLibraryVersion, GOOGLE_PROTOBUF_MIN_LIBRARY_VERSION);
  calls().verified.emplace_back(filename);
}

void OnShutdown(void (*function)()) { calls().onShutdown.push_back(function); }

}  // namespace google::protobuf::internal

namespace {

namespace coef = com::zor::coef;
namespace onyx = com::zor::onyx::fxp_std;
namespace peq = com::zor::peq;
namespace tech = com::zor::tech;
namespace vrm = com::zor::vrm;

struct File {
  const char* source;
  void (*add)();
  void (*shutdown)();
};
#define FILE_IN(package, file)                                  \
  {                                                             \
#file ".pb.cc", package::protobuf_AddDesc_##file##_2eproto, \
        package::protobuf_ShutdownFile_##file##_2eproto         \
  }
const std::vector<File> kFiles = {FILE_IN(peq, peq),
                                  FILE_IN(coef, coefXeq),
                                  FILE_IN(coef, coefHpf),
                                  FILE_IN(coef, coefDeep),
                                  FILE_IN(coef, coefVantixXover),
                                  FILE_IN(tech, techLeveler),
                                  FILE_IN(tech, techContour2),
                                  FILE_IN(tech, techVantix),
                                  FILE_IN(tech, techGeq10b),
                                  FILE_IN(tech, techXeq),
                                  FILE_IN(tech, techOrb),
                                  FILE_IN(onyx, onyx),
                                  FILE_IN(vrm, vrm)};

// Each file once, in the order of the registrars. A version is checked before the imports are
// registered and the shutdown function is handed over after: onyx brings vrm along.
void expectRegisteredOnce() {
  std::vector<std::string> sources;
  std::vector<void (*)()> shutdowns;
  for (const File& file : kFiles) {
    sources.emplace_back(file.source);
    shutdowns.push_back(file.shutdown);
  }
  std::swap(shutdowns[11], shutdowns[12]);
  EXPECT_EQ(calls().verified, sources);
  EXPECT_EQ(calls().onShutdown, shutdowns);
}

TEST(Registration, OnceAtLoadImportsFirst) { expectRegisteredOnce(); }

TEST(Registration, SecondCallsDoNothing) {
  for (const File& file : kFiles) file.add();
  expectRegisteredOnce();
}

// Whatever the runtime calls at shutdown, static storage is not freed.
TEST(Registration, ShutdownFunctionsFreeNothing) {
  for (void (*function)() : calls().onShutdown) function();
  EXPECT_EQ(onyx::Onyx().version(), "1.00.02");
}

}  // namespace
