// What there is to say about a configuration: the checker's findings, and the unknown fields, which
// the library's parse drops before the checker could see them.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "Configuration.h"
#include "ZorPbCheck.h"

struct Finding {
  ZorPbSeverity severity;
  std::string rule;
  std::string path;
  std::string text;  // the whole line
  // As in ZorPbFinding; of unknown fields, value is their number of occurrences.
  int firstIndex = -1;
  int lastIndex = -1;
  int64_t value = 0;
  int64_t engine = 0;
};

std::vector<Finding> findingsOf(const Configuration& configuration);

// Whether the exit status tells of it when not every finding does.
bool counts(const Finding& finding);

enum class FindingForm { kLines, kJson };
void print(const std::vector<Finding>& findings, const std::string& file, bool namesFile,
           FindingForm form, std::ostream& os);
