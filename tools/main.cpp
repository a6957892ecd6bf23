// The zorcs command: looks into configurations, converts them, and tells what a conversion loses.
#include <google/protobuf/stubs/logging.h>

#include <exception>
#include <iostream>
#include <sstream>

#include "Commands.h"
#include "Layout.h"
#include "Trouble.h"

namespace {

void reportTrouble(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) std::cerr << "zorcs: " << line << "\n";
}

void describe(CLI::App* program, int* status) {
  program->require_subcommand(1);
  program->set_version_flag(
      "--version", [] { return std::string("zorcs " ZORCS_VERSION "\nlayout ") + layoutHash(); });
  program->footer(
      "FILE is a configuration in protobuf text format (.txtpb), JSON (.json) or binary form\n"
      "(.binpb); of another name, the content tells. - is standard input or output.\n"
      "Exit status: 0 clean, 1 findings or differences, 2 usage or input/output, 3 input that\n"
      "does not parse.");
  for (const auto add : {addCheck, addShow, addBuild, addDiff, addPack, addUnpack, addRoundtrip,
                         addLayout, addPlot}) {
    add(program, status);
  }
}

int run(int argc, char** argv) {
  int status = kClean;
  CLI::App program("Looks into audio configurations and tells what the engine makes of them",
                   "zorcs");
  describe(&program, &status);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return program.exit(error);  // help, version
    reportTrouble(error.what());
    return kCannotRun;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  google::protobuf::SetLogHandler(nullptr);  // what the runtime has to say, we say in one line
  try {
    int status = kCannotRun;
    try {
      status = run(argc, argv);
    } catch (const Trouble& trouble) {
      std::cout.flush();
      reportTrouble(trouble.what());
      return trouble.status();
    }
    if (!std::cout.flush()) throw Trouble(kCannotRun, "standard output: cannot be written");
    return status;
  } catch (const std::exception& error) {
    reportTrouble(error.what());
    return kCannotRun;
  }
}
