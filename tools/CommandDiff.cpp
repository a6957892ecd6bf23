#include <iostream>

#include "Changes.h"
#include "Commands.h"
#include "Configuration.h"
#include "Trouble.h"

int diff(const DiffOptions& options) {
  const auto before = loadConfiguration(options.before);
  const auto after = loadConfiguration(options.after);
  const auto changes = changesBetween(*before.message, *after.message);
  print(changes, options.json ? ChangeForm::kJson : ChangeForm::kLines, std::cout);
  return changes.empty() ? kClean : kFound;
}
