// Names and texts: what people read of a finding.
#include <string>

#include "ZorPbCheck.h"

namespace {

// "1 value", "5 values".
std::string counted(int64_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string whatHappens(const ZorPbFinding& finding) {
  const int64_t elements = finding.lastIndex - finding.firstIndex + 1;
  const std::string pastEnd =
      counted(elements, "value") + " past the capacity of " + std::to_string(finding.engine);
  switch (finding.rule) {
    case ZorPbRule::kOverrun:
      return pastEnd + (elements == 1 ? " is" : " are") + " written over what follows the table";
    case ZorPbRule::kMissingRequired:
      return "is required and not set";
    case ZorPbRule::kShortSource:
      return counted(finding.value, "value") + " where the engine takes " +
             std::to_string(finding.engine) + ", the struct keeps what it had";
    case ZorPbRule::kInt16Wrap:
      return std::to_string(finding.value) + " does not fit 16 bits, the engine gets " +
             std::to_string(finding.engine);
    case ZorPbRule::kListCut:
      return pastEnd + (elements == 1 ? " is cut" : " are cut");
    case ZorPbRule::kNotCarried:
      if (finding.value != finding.engine && finding.firstIndex < 0) {
        return std::to_string(finding.value) + " is not carried, the engine gets " +
               std::to_string(finding.engine);
      }
      if (finding.firstIndex >= 0) {
        return counted(elements, "element") + (elements == 1 ? " never reaches" : " never reach") +
               " the engine";
      }
      return "is set, but never reaches the engine";
    case ZorPbRule::kListShort:
      return counted(finding.value, "value") + " for " + std::to_string(finding.engine) +
             ", the struct keeps what it had";
    case ZorPbRule::kAbsentBlock:
      return "is absent, the struct keeps what it had";
  }
  return "";
}

}  // namespace

std::string ZorPbFinding::path() const {
  std::string text;
  for (const Step& step : steps) {
    if (step.name == nullptr) break;
    if (!text.empty()) text.append(".");
    text.append(step.name);
    if (step.index >= 0) text.append("[").append(std::to_string(step.index)).append("]");
  }
  return text;
}

ZorPbSeverity ZorPbCheck::severity(ZorPbRule rule) {
  switch (rule) {
    case ZorPbRule::kOverrun:
      return ZorPbSeverity::kUnsafe;
    case ZorPbRule::kMissingRequired:
    case ZorPbRule::kShortSource:
      return ZorPbSeverity::kError;
    case ZorPbRule::kInt16Wrap:
    case ZorPbRule::kListCut:
      return ZorPbSeverity::kLossy;
    case ZorPbRule::kNotCarried:
      return ZorPbSeverity::kDropped;
    case ZorPbRule::kListShort:
    case ZorPbRule::kAbsentBlock:
      return ZorPbSeverity::kPartial;
  }
  return ZorPbSeverity::kUnsafe;
}

const char* ZorPbCheck::name(ZorPbSeverity severity) {
  switch (severity) {
    case ZorPbSeverity::kUnsafe:
      return "unsafe";
    case ZorPbSeverity::kError:
      return "error";
    case ZorPbSeverity::kLossy:
      return "lossy";
    case ZorPbSeverity::kDropped:
      return "dropped";
    case ZorPbSeverity::kPartial:
      return "partial";
  }
  return "";
}

const char* ZorPbCheck::id(ZorPbRule rule) {
  switch (rule) {
    case ZorPbRule::kOverrun:
      return "overrun";
    case ZorPbRule::kMissingRequired:
      return "missing-required";
    case ZorPbRule::kShortSource:
      return "short-source";
    case ZorPbRule::kInt16Wrap:
      return "int16-wrap";
    case ZorPbRule::kListCut:
      return "list-cut";
    case ZorPbRule::kNotCarried:
      return "not-carried";
    case ZorPbRule::kListShort:
      return "list-short";
    case ZorPbRule::kAbsentBlock:
      return "absent-block";
  }
  return "";
}

std::string ZorPbCheck::text(const ZorPbFinding& finding) {
  std::string range;
  if (finding.firstIndex >= 0) {
    range = "[" + std::to_string(finding.firstIndex);
    if (finding.lastIndex != finding.firstIndex) range += ".." + std::to_string(finding.lastIndex);
    range += "]";
  }
  return finding.path() + range + ": " + name(severity(finding.rule)) + ": " +
         whatHappens(finding) + " [" + id(finding.rule) + "]";
}
