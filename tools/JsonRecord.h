// One line of --json output: an object that begins with its schema_version.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

class JsonRecord {
 public:
  JsonRecord() : text_("{\"schema_version\":1") {}

  JsonRecord& add(const std::string& key, const std::string& value);
  JsonRecord& add(const std::string& key, const char* value) {
    return add(key, std::string(value));
  }
  JsonRecord& add(const std::string& key, int64_t value);
  // Takes a value that is JSON already.
  JsonRecord& addRaw(const std::string& key, const std::string& json);

  friend std::ostream& operator<<(std::ostream& os, const JsonRecord& record) {
    return os << record.text_ << "}\n";
  }

 private:
  std::string text_;
};
