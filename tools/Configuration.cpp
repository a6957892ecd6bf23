#include "Configuration.h"

#include <google/protobuf/io/tokenizer.h>
#include <google/protobuf/text_format.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <sstream>
#include <vector>

#include "Files.h"
#include "JsonInput.h"
#include "Schema.h"
#include "Trouble.h"

namespace {

using google::protobuf::Message;

enum class Form { kText, kJson, kBinary };

bool isText(char c) {
  return std::isprint(static_cast<unsigned char>(c)) != 0 || c == '\n' || c == '\r' || c == '\t' ||
         (static_cast<unsigned char>(c) & 0x80) != 0;
}

// A binary configuration has control characters right at its start: a length, a field number.
Form formOf(const std::string& path, const std::string& bytes) {
  constexpr std::size_t kHeadBytes = 4096;
  const std::string extension = std::filesystem::path(path).extension().string();
  if (extension == ".txtpb" || extension == ".textproto") return Form::kText;
  if (extension == ".json") return Form::kJson;
  if (extension == ".binpb" || extension == ".pb") return Form::kBinary;
  const std::string head = bytes.substr(0, kHeadBytes);
  if (!std::all_of(head.begin(), head.end(), isText)) return Form::kBinary;
  const auto first = head.find_first_not_of(" \t\r\n");
  return first != std::string::npos && head[first] == '{' ? Form::kJson : Form::kText;
}

// Keeps the first error: what follows it is mostly its consequence.
class FirstError : public google::protobuf::io::ErrorCollector {
 public:
  void AddError(int line, google::protobuf::io::ColumnNumber column,
                const std::string& message) override {
    if (!text_.empty()) return;
    line_ = line;
    column_ = column;
    text_ = message;
  }
  void AddWarning(int, google::protobuf::io::ColumnNumber, const std::string&) override {}

  int line() const { return line_; }
  int column() const { return column_; }
  const std::string& text() const { return text_; }

 private:
  int line_ = 0;
  int column_ = 0;
  std::string text_;
};

// The field whose value begins last before an error: the parser names the value only.
std::string fieldBefore(const std::string& text, int line, int column) {
  std::istringstream lines(text);
  std::string field;
  std::string current;
  for (int i = 0; i <= line && std::getline(lines, current); ++i) {
    if (i == line) current.resize(std::min(current.size(), static_cast<std::size_t>(column)));
    const std::string code = current.substr(0, current.find('#'));
    const auto colon = code.find_last_of(":{");
    if (colon == std::string::npos) continue;
    const auto end = code.find_last_not_of(" \t", colon == 0 ? 0 : colon - 1) + 1;
    std::size_t start = end;
    while (start > 0 && (std::isalnum(static_cast<unsigned char>(code[start - 1])) != 0 ||
                         code[start - 1] == '_')) {
      --start;
    }
    if (start < end && end <= colon) field = code.substr(start, end - start);
  }
  return field;
}

void parseText(const std::string& name, const std::string& text, Message* message) {
  FirstError error;
  google::protobuf::TextFormat::Parser parser;
  parser.RecordErrorsTo(&error);
  parser.AllowPartialMessage(true);
  if (parser.ParseFromString(text, message)) return;
  std::string what = name + ":" + std::to_string(error.line() + 1) + ":" +
                     std::to_string(error.column() + 1) + ": " + error.text();
  const std::string field = fieldBefore(text, error.line(), error.column());
  if (!field.empty()) what += " (at " + field + ")";
  throw Trouble(kNotParsed, what);
}

}  // namespace

Configuration loadConfiguration(const std::string& path) {
  Configuration result;
  result.name = path == "-" ? "standard input" : path;
  const std::string bytes = readFile(path);
  // The version is required, so that there is no empty configuration.
  if (bytes.empty()) throw Trouble(kNotParsed, result.name + ": is empty");
  result.message = schema::newConfiguration();
  switch (formOf(path, bytes)) {
    case Form::kText:
      parseText(result.name, bytes, result.message.get());
      break;
    case Form::kJson:
      parseJson(result.name, bytes, result.message.get());
      break;
    case Form::kBinary:
      if (!result.message->ParsePartialFromString(bytes)) {
        throw Trouble(kNotParsed,
                      result.name + ": is no configuration, or is cut short or damaged");
      }
      break;
  }
  if (!result.onyx.ParsePartialFromString(result.message->SerializePartialAsString())) {
    throw Trouble(kNotParsed, result.name + ": is no configuration");
  }
  return result;
}

void requireComplete(const Configuration& configuration) {
  std::vector<std::string> missing;
  configuration.message->FindInitializationErrors(&missing);
  if (missing.empty()) return;
  std::string text;
  for (const auto& path : missing) {
    if (!text.empty()) text += "\n";
    text.append(configuration.name).append(": ").append(path).append(" is required and unset");
  }
  throw Trouble(kNotParsed, text);
}

std::unique_ptr<Message> withNames(const com::zor::onyx::fxp_std::Onyx& onyx) {
  auto message = schema::newConfiguration();
  message->ParsePartialFromString(onyx.SerializePartialAsString());
  return message;
}
