#include "JsonRecord.h"

#include <string_view>

namespace {

std::string quoted(const std::string& text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string result = "\"";
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      result.append({'\\', c});
    } else if (code < 0x20) {
      result.append("\\u00").append({kHex[code >> 4], kHex[code & 15]});
    } else {
      result.push_back(c);
    }
  }
  return result + "\"";
}

}  // namespace

JsonRecord& JsonRecord::add(const std::string& key, const std::string& value) {
  return addRaw(key, quoted(value));
}

JsonRecord& JsonRecord::add(const std::string& key, int64_t value) {
  return addRaw(key, std::to_string(value));
}

JsonRecord& JsonRecord::addRaw(const std::string& key, const std::string& json) {
  text_.append(",").append(quoted(key)).append(":").append(json);
  return *this;
}
