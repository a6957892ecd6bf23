#include <iostream>
#include <memory>
#include <string>

#include "Changes.h"
#include "Commands.h"
#include "Configuration.h"
#include "Trouble.h"

namespace {

struct Options {
  std::string before;
  std::string after;
  bool json = false;
};

int diff(const Options& options) {
  const auto before = loadConfiguration(options.before);
  const auto after = loadConfiguration(options.after);
  const auto changes = changesBetween(*before.message, *after.message);
  print(changes, options.json ? ChangeForm::kJson : ChangeForm::kLines, std::cout);
  return changes.empty() ? kClean : kFound;
}

}  // namespace

void addDiff(CLI::App* program, int* status) {
  const auto options = std::make_shared<Options>();
  auto* command = program->add_subcommand("diff", "Compare two configurations, field by field");
  command->add_option("A", options->before, "Configuration")->required();
  command->add_option("B", options->after, "Configuration")->required();
  command->add_flag("--json", options->json, "Print one JSON object a difference");
  command->footer("Example:\n  zorcs diff speaker.txtpb device.binpb");
  command->callback([options, status] { *status = diff(*options); });
}
