#include "Changes.h"

#include <google/protobuf/descriptor.h>
#include <google/protobuf/text_format.h>
#include <google/protobuf/util/field_comparator.h>
#include <google/protobuf/util/message_differencer.h>

#include <algorithm>
#include <cstdlib>
#include <ostream>

#include "JsonRecord.h"

namespace {

using google::protobuf::FieldDescriptor;
using google::protobuf::Message;
using google::protobuf::util::MessageDifferencer;
using SpecificField = MessageDifferencer::SpecificField;
using FieldPath = std::vector<SpecificField>;

constexpr const char* kAbsent = "absent";

bool isInteger(const SpecificField& at) {
  return at.field != nullptr && at.field->cpp_type() == FieldDescriptor::CPPTYPE_INT32;
}

std::string pathText(const FieldPath& path, bool withLastIndex) {
  std::string text;
  for (std::size_t i = 0; i < path.size(); ++i) {
    const auto& step = path[i];
    if (i > 0) text += ".";
    text += step.field != nullptr ? step.field->name() : std::to_string(step.unknown_field_number);
    const bool isLast = i + 1 == path.size();
    if (step.field != nullptr && step.index >= 0 && (withLastIndex || !isLast)) {
      text += "[" + std::to_string(step.index) + "]";
    }
  }
  return text;
}

std::string valueText(const Message& message, const SpecificField& at) {
  constexpr std::size_t kLongest = 60;
  if (at.field == nullptr) return "an unknown field";
  google::protobuf::TextFormat::Printer printer;
  printer.SetSingleLineMode(true);
  printer.SetUseShortRepeatedPrimitives(true);
  std::string text;
  printer.PrintFieldValueToString(message, at.field, at.field->is_repeated() ? at.index : -1,
                                  &text);
  if (at.field->cpp_type() == FieldDescriptor::CPPTYPE_MESSAGE) text = "{ " + text + "}";
  if (text.size() > kLongest) text = text.substr(0, kLongest - 5) + "... }";
  return text;
}

int64_t elementAt(const Message& message, const SpecificField& at) {
  return message.GetReflection()->GetRepeatedInt32(message, at.field, at.index);
}

class Collector : public MessageDifferencer::Reporter {
 public:
  explicit Collector(std::vector<Change>* changes) : changes_(*changes) {}

  void ReportAdded(const Message&, const Message& after, const FieldPath& path) override {
    add(ChangeKind::kAdded, path, kAbsent, valueText(after, path.back()), 0);
  }
  void ReportDeleted(const Message& before, const Message&, const FieldPath& path) override {
    add(ChangeKind::kRemoved, path, valueText(before, path.back()), kAbsent, 0);
  }
  void ReportModified(const Message& before, const Message& after, const FieldPath& path) override {
    const auto& at = path.back();
    // What changed in a message has been reported already.
    if (at.field != nullptr && at.field->cpp_type() == FieldDescriptor::CPPTYPE_MESSAGE) return;
    const bool isElement = isInteger(at) && at.field->is_repeated();
    add(ChangeKind::kModified, path, valueText(before, at), valueText(after, at),
        isElement ? std::abs(elementAt(after, at) - elementAt(before, at)) : 0);
  }

 private:
  // Elements of a list that share a kind of change become one change with ranges.
  void add(ChangeKind kind, const FieldPath& path, std::string before, std::string after,
           int64_t difference) {
    const auto& at = path.back();
    if (!isInteger(at) || !at.field->is_repeated()) {
      changes_.push_back({kind, pathText(path, true), std::move(before), std::move(after)});
      return;
    }
    std::string list = pathText(path, false);
    if (changes_.empty() || changes_.back().kind != kind || changes_.back().path != list) {
      changes_.push_back({kind, std::move(list), "", ""});
    }
    Change& change = changes_.back();
    change.before = std::move(before);
    change.after = std::move(after);
    ++change.count;
    change.largestDifference = std::max(change.largestDifference, difference);
    if (!change.ranges.empty() && change.ranges.back().second + 1 == at.index) {
      change.ranges.back().second = at.index;
    } else {
      change.ranges.emplace_back(at.index, at.index);
    }
  }

  std::vector<Change>& changes_;
};

std::string rangesText(const Change& change) {
  constexpr std::size_t kMostRanges = 8;
  std::string text;
  for (std::size_t i = 0; i < std::min(kMostRanges, change.ranges.size()); ++i) {
    const auto [first, last] = change.ranges[i];
    text.append(i > 0 ? ", " : "").append(std::to_string(first));
    if (last > first) text.append("..").append(std::to_string(last));
  }
  if (change.ranges.size() > kMostRanges) {
    text += " and " + std::to_string(change.ranges.size() - kMostRanges) + " more ranges";
  }
  return change.path + "[" + text + "]";
}

std::string lineOf(const Change& change) {
  if (change.ranges.empty()) return change.path + ": " + change.before + " -> " + change.after;
  const std::string start = rangesText(change) + ": ";
  if (change.count == 1) return start + change.before + " -> " + change.after;
  const std::string count = start + std::to_string(change.count) + " values ";
  if (change.kind == ChangeKind::kAdded) return count + "added";
  if (change.kind == ChangeKind::kRemoved) return count + "removed";
  return count + "differ, the largest difference is " + std::to_string(change.largestDifference);
}

JsonRecord recordOf(const Change& change) {
  constexpr const char* kKinds[] = {"modified", "added", "removed"};
  JsonRecord record;
  record.add("path", change.path).add("change", kKinds[static_cast<int>(change.kind)]);
  if (change.ranges.empty()) {
    record.add("before", change.before).add("after", change.after);
    return record;
  }
  std::string ranges;
  for (const auto& [first, last] : change.ranges) {
    ranges +=
        (ranges.empty() ? "[" : ",[") + std::to_string(first) + "," + std::to_string(last) + "]";
  }
  record.addRaw("ranges", "[" + ranges + "]")
      .add("count", change.count)
      .add("largest_difference", change.largestDifference);
  return record;
}

}  // namespace

std::vector<Change> changesBetween(const Message& before, const Message& after) {
  std::vector<Change> changes;
  Collector collector(&changes);
  google::protobuf::util::DefaultFieldComparator comparator;
  comparator.set_treat_nan_as_equal(true);
  MessageDifferencer differencer;
  differencer.set_field_comparator(&comparator);
  differencer.ReportDifferencesTo(&collector);
  differencer.Compare(before, after);
  return changes;
}

void print(const std::vector<Change>& changes, ChangeForm form, std::ostream& os) {
  for (const auto& change : changes) {
    if (form == ChangeForm::kLines) {
      os << lineOf(change) << "\n";
    } else {
      os << recordOf(change);
    }
  }
}
