#include "JsonInput.h"

#include <google/protobuf/util/json_util.h>

#include <algorithm>
#include <regex>
#include <vector>

#include "Schema.h"
#include "Trouble.h"

namespace {

// One step of a path: a key, and how many elements of its list to pass over.
struct Step {
  std::string key;
  int index;
};

std::vector<Step> stepsOf(const std::string& path) {
  static const std::regex kStep(R"(([^.\[\]]+)(\[(\d+)\])?)");
  std::vector<Step> steps;
  for (std::sregex_iterator it(path.begin(), path.end(), kStep), end; it != end; ++it) {
    steps.push_back({it->str(1), (*it)[3].matched ? std::stoi(it->str(3)) : 0});
  }
  return steps;
}

std::size_t endOfString(const std::string& json, std::size_t quote) {
  for (std::size_t i = quote + 1; i < json.size(); ++i) {
    if (json[i] == '\\') {
      ++i;
    } else if (json[i] == '"') {
      return i;
    }
  }
  return json.size() - 1;
}

// Where the last step of a path stands in text that is JSON; or the last of its steps that is
// there.
std::size_t locate(const std::string& json, const std::vector<Step>& steps) {
  std::size_t found = 0;
  std::size_t matched = 0;
  std::size_t depth = 0;
  int toPass = 0;
  for (std::size_t i = 0; i < json.size() && (matched < steps.size() || toPass > 0); ++i) {
    if (json[i] == '{') ++depth;
    if (json[i] == '}' && depth-- <= matched) break;  // the object that has it ends here
    if (json[i] == ',' && depth == matched && toPass > 0 && --toPass == 0) found = i + 1;
    if (json[i] != '"') continue;
    const std::size_t end = endOfString(json, i);
    const std::size_t next = json.find_first_not_of(" \t\r\n", end + 1);
    if (toPass == 0 && matched < steps.size() && depth == matched + 1 &&
        next != std::string::npos && json[next] == ':' &&
        json.compare(i + 1, end - i - 1, steps[matched].key) == 0) {
      found = i;
      toPass = steps[matched++].index;
    }
    i = end;
  }
  return std::min(json.find_first_not_of(" \t\r\n", found), json.size());
}

// Of a field that is not there or has a wrong value, the runtime tells the path: "(path) key: ..."
// or
// "(path): ...".
std::size_t locateField(const std::string& json, const std::string& error) {
  static const std::regex kNamed(R"(^(?:\(([^)]*)\))?:? ?(?:([^ :]+): Cannot find field)?)");
  std::smatch match;
  std::regex_search(error, match, kNamed);
  std::vector<Step> steps = stepsOf(match.str(1));
  if (match[2].matched) steps.push_back({match.str(2), 0});
  return locate(json, steps);
}

// Of what is no JSON, it quotes a piece of the text, and below that has a caret under the place.
std::size_t locateError(const std::string& json, const std::string& error) {
  const auto quote = error.find('\n');
  if (quote == std::string::npos) return locateField(json, error);
  const auto caretLine = error.rfind('\n');
  const std::string quoted = error.substr(quote + 1, caretLine - quote - 1);
  if (quoted.empty()) return json.size();  // it ends too early
  const auto start = json.find(quoted);
  return start == std::string::npos ? 0 : start + (error.size() - caretLine - 2);
}

std::string positionOf(const std::string& text, std::size_t offset) {
  const auto begin = text.begin();
  const auto at = begin + static_cast<std::ptrdiff_t>(std::min(offset, text.size()));
  const auto line = std::count(begin, at, '\n') + 1;
  const auto lineStart = std::find(std::make_reverse_iterator(at), text.rend(), '\n').base();
  return std::to_string(line) + ":" + std::to_string(at - lineStart + 1);
}

}  // namespace

void parseJson(const std::string& name, const std::string& text,
               google::protobuf::Message* message) {
  std::string binary;
  const auto status = google::protobuf::util::JsonToBinaryString(
      schema::jsonTypes(), schema::jsonTypeUrl(), text, &binary);
  if (status.ok() && message->ParsePartialFromString(binary)) return;
  const std::string error(status.message().data(), status.message().size());
  throw Trouble(kNotParsed, name + ":" + positionOf(text, locateError(text, error)) + ": " +
                                error.substr(0, error.find('\n')));
}
