// How two configurations differ, field by field.
#pragma once

#include <google/protobuf/message.h>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

enum class ChangeKind { kModified, kAdded, kRemoved };

struct Change {
  ChangeKind kind;
  std::string path;
  // The value on either side; "absent" where there is none. Of several elements, the last.
  std::string before;
  std::string after;
  // Elements of a list of integers, gathered: inclusive, ascending. Empty for all other fields.
  std::vector<std::pair<int, int>> ranges = {};
  int count = 0;
  int64_t largestDifference = 0;
};

// Fields that are unset differ from fields that are set to their default.
std::vector<Change> changesBetween(const google::protobuf::Message& before,
                                   const google::protobuf::Message& after);

enum class ChangeForm { kLines, kJson };
void print(const std::vector<Change>& changes, ChangeForm form, std::ostream& os);
