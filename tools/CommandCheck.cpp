#include <algorithm>
#include <iostream>
#include <string>

#include "Commands.h"
#include "Configuration.h"
#include "Findings.h"
#include "Trouble.h"

namespace {

int checkFile(const std::string& file, const CheckOptions& options) {
  const auto configuration = loadConfiguration(file);
  const auto findings = findingsOf(configuration);
  print(findings, configuration.name, options.files.size() > 1,
        options.json ? FindingForm::kJson : FindingForm::kLines, std::cout);
  const bool isFound =
      options.strict ? !findings.empty() : std::any_of(findings.begin(), findings.end(), counts);
  return isFound ? kFound : kClean;
}

}  // namespace

// A file that cannot be checked does not keep the next from being checked; the worst status counts.
int check(const CheckOptions& options) {
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
