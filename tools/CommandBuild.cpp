#include <algorithm>
#include <iostream>

#include "Commands.h"
#include "Configuration.h"
#include "Files.h"
#include "Findings.h"
#include "Trouble.h"

int build(const BuildOptions& options) {
  const auto configuration = loadConfiguration(options.file);
  requireComplete(configuration);
  const auto findings = findingsOf(configuration);
  writeFile(options.output, configuration.onyx.SerializeAsString());
  // Where the message goes to standard output, the findings must not.
  print(findings, configuration.name, false, FindingForm::kLines,
        options.output == "-" ? std::cerr : std::cout);
  return std::any_of(findings.begin(), findings.end(), counts) ? kFound : kClean;
}
