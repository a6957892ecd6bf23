#include "Findings.h"

#include <google/protobuf/descriptor.h>
#include <google/protobuf/unknown_field_set.h>

#include <map>
#include <ostream>

#include "Files.h"
#include "JsonRecord.h"

namespace {

using google::protobuf::FieldDescriptor;
using google::protobuf::Message;

constexpr const char* kUnknownField = "unknown-field";

Finding unknownField(const std::string& prefix, const FieldDescriptor* field, int number,
                     int times) {
  const auto severity = ZorPbSeverity::kDropped;
  const std::string path = prefix + (field != nullptr ? field->name() : std::to_string(number));
  std::string text = path + ": " + ZorPbCheck::name(severity) + ": ";
  text += field != nullptr ? "a value that the field's type does not have is dropped"
                           : "a field that the schema does not know is dropped";
  if (times > 1) text += ", " + std::to_string(times) + " times";
  text += std::string(" [") + kUnknownField + "]";
  return {severity, kUnknownField, path, text, -1, -1, times};
}

void addUnknownFields(const Message& message, const std::string& prefix,
                      std::vector<Finding>* findings) {
  const auto* reflection = message.GetReflection();
  const auto& unknown = reflection->GetUnknownFields(message);
  std::map<int, int> times;
  for (int i = 0; i < unknown.field_count(); ++i) ++times[unknown.field(i).number()];
  for (const auto& [number, count] : times) {
    const auto* field = message.GetDescriptor()->FindFieldByNumber(number);
    findings->push_back(unknownField(prefix, field, number, count));
  }

  std::vector<const FieldDescriptor*> fields;
  reflection->ListFields(message, &fields);
  for (const auto* field : fields) {
    if (field->cpp_type() != FieldDescriptor::CPPTYPE_MESSAGE) continue;
    if (!field->is_repeated()) {
      addUnknownFields(reflection->GetMessage(message, field), prefix + field->name() + ".",
                       findings);
      continue;
    }
    for (int i = 0; i < reflection->FieldSize(message, field); ++i) {
      addUnknownFields(reflection->GetRepeatedMessage(message, field, i),
                       prefix + field->name() + "[" + std::to_string(i) + "].", findings);
    }
  }
}

const char* colourOf(ZorPbSeverity severity) {
  switch (severity) {
    case ZorPbSeverity::kUnsafe:
    case ZorPbSeverity::kError:
      return "\033[1;31m";
    case ZorPbSeverity::kLossy:
      return "\033[1;33m";
    case ZorPbSeverity::kDropped:
    case ZorPbSeverity::kPartial:
      break;
  }
  return "\033[36m";
}

std::string coloured(const Finding& finding) {
  const std::string severity = ZorPbCheck::name(finding.severity);
  const auto at = finding.text.find(": " + severity + ": ");
  if (at == std::string::npos) return finding.text;
  return finding.text.substr(0, at + 2) + colourOf(finding.severity) + severity + "\033[0m" +
         finding.text.substr(at + 2 + severity.size());
}

}  // namespace

std::vector<Finding> findingsOf(const Configuration& configuration) {
  std::vector<Finding> result;
  for (const auto& finding : ZorPbCheck::findings(configuration.onyx)) {
    result.push_back({ZorPbCheck::severity(finding.rule), ZorPbCheck::id(finding.rule),
                      finding.path(), ZorPbCheck::text(finding), finding.firstIndex,
                      finding.lastIndex, finding.value, finding.engine});
  }
  addUnknownFields(*configuration.message, "", &result);
  return result;
}

bool counts(const Finding& finding) { return finding.severity <= ZorPbSeverity::kLossy; }

void print(const std::vector<Finding>& findings, const std::string& file, bool namesFile,
           FindingForm form, std::ostream& os) {
  const bool isColoured = wantsColour();
  for (const auto& finding : findings) {
    if (form == FindingForm::kLines) {
      os << (namesFile ? file + ": " : "") << (isColoured ? coloured(finding) : finding.text)
         << "\n";
      continue;
    }
    JsonRecord record;
    record.add("file", file).add("path", finding.path);
    if (finding.firstIndex >= 0) {
      record.add("first_index", finding.firstIndex).add("last_index", finding.lastIndex);
    }
    os << record.add("severity", ZorPbCheck::name(finding.severity))
              .add("rule", finding.rule)
              .add("value", finding.value)
              .add("engine", finding.engine)
              .add("text", finding.text);
  }
}
