#include <algorithm>
#include <iostream>
#include <memory>
#include <string>

#include "Commands.h"
#include "Configuration.h"
#include "Files.h"
#include "Findings.h"
#include "Trouble.h"

namespace {

struct Options {
  std::string file;
  std::string output;
};

int build(const Options& options) {
  const auto configuration = loadConfiguration(options.file);
  requireComplete(configuration);
  const auto findings = findingsOf(configuration);
  writeFile(options.output, configuration.onyx.SerializeAsString());
  // Where the message goes to standard output, the findings must not.
  print(findings, configuration.name, false, FindingForm::kLines,
        options.output == "-" ? std::cerr : std::cout);
  return std::any_of(findings.begin(), findings.end(), counts) ? kFound : kClean;
}

}  // namespace

void addBuild(CLI::App* program, int* status) {
  const auto options = std::make_shared<Options>();
  auto* command = program->add_subcommand(
      "build", "Make the binary message of text or JSON; the findings of check are printed");
  command->add_option("FILE", options->file, "Configuration")->required();
  command->add_option("-o,--output", options->output, "Binary message")->required();
  command->footer("Example:\n  zorcs build speaker.txtpb -o speaker.binpb");
  command->callback([options, status] { *status = build(*options); });
}
