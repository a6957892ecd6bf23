#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "Commands.h"
#include "Configuration.h"
#include "Findings.h"
#include "Trouble.h"

namespace {

struct Options {
  std::vector<std::string> files;
  bool strict = false;
  bool json = false;
};

int checkFile(const std::string& file, const Options& options) {
  const auto configuration = loadConfiguration(file);
  const auto findings = findingsOf(configuration);
  print(findings, configuration.name, options.files.size() > 1,
        options.json ? FindingForm::kJson : FindingForm::kLines, std::cout);
  const bool isFound =
      options.strict ? !findings.empty() : std::any_of(findings.begin(), findings.end(), counts);
  return isFound ? kFound : kClean;
}

// A file that cannot be checked does not keep the next from being checked; the worst status counts.
int check(const Options& options) {
  int status = kClean;
  for (const auto& file : options.files) {
    try {
      status = std::max(status, checkFile(file, options));
    } catch (const Trouble& trouble) {
      std::cout.flush();
      std::cerr << "zorcs: " << trouble.what() << "\n";
      status = std::max<int>(status, trouble.status());
    }
  }
  return status;
}

}  // namespace

void addCheck(CLI::App* program, int* status) {
  const auto options = std::make_shared<Options>();
  auto* command = program->add_subcommand("check", "Tell what a conversion would lose or endanger");
  command->add_option("FILE", options->files, "Configurations")->required();
  command->add_flag(
      "--strict", options->strict,
      "Let every finding count for the exit status, not only unsafe, error and lossy");
  command->add_flag("--json", options->json, "Print one JSON object a finding");
  command->footer("Example:\n  zorcs check --strict speaker.txtpb headphones.txtpb");
  command->callback([options, status] { *status = check(*options); });
}
