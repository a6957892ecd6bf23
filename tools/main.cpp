// The zorcs command: looks into configurations, converts them, and tells what a conversion loses.
#include <google/protobuf/stubs/logging.h>

#include "CommandLine.h"

int main(int argc, char** argv) {
  google::protobuf::SetLogHandler(nullptr);  // what the runtime has to say, we say in one line
  return runCommandLine(argc, argv);
}
