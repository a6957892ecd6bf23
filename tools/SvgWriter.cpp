#include "SvgWriter.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

namespace {

bool allowedInXml(uint32_t character) {
  if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  return !surrogate && character != 0xFFFE && character != 0xFFFF && character <= 0x10FFFF;
}

// How many bytes the sequence that begins with lead has, 0 if no sequence begins with it.
std::size_t sequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC0) return 0;
  if (lead < 0xE0) return 2;
  if (lead < 0xF0) return 3;
  return lead < 0xF8 ? 4 : 0;
}

// How many bytes the first character of text has, 0 if they are none that XML can hold.
std::size_t characterLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = sequenceLength(lead);
  if (length == 0 || length > text.size()) return 0;
  uint32_t character = length == 1 ? lead : lead & (0x7FU >> length);
  for (const char c : text.substr(1, length - 1)) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0U) != 0x80) return 0;
    character = (character << 6U) | (byte & 0x3FU);
  }
  // A longer sequence than the character needs is not UTF-8.
  constexpr std::array<uint32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  return character >= kSmallest[length] && allowedInXml(character) ? length : 0;
}

std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : wellFormed(text)) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

}  // namespace

std::string svgNumber(double value) {
  std::array<char, 64> digits = {};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                 std::chars_format::fixed, 2)
                       .ptr;
  std::string number(digits.data(), end);
  number.erase(number.find_last_not_of('0') + 1);
  if (number.back() == '.') number.pop_back();
  return number == "-0" ? "0" : number;
}

std::string wellFormed(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    result += length > 0 ? text.substr(0, length) : std::string_view("\xEF\xBF\xBD");
    text.remove_prefix(length > 0 ? length : 1);
  }
  return result;
}

void SvgWriter::open(std::string_view name, Attributes attributes) {
  begin(name, attributes);
  document_ += ">\n";
  openElements_.emplace_back(name);
}

void SvgWriter::close() {
  const std::string name = openElements_.back();
  openElements_.pop_back();
  document_.append(2 * openElements_.size(), ' ').append("</").append(name).append(">\n");
}

void SvgWriter::leaf(std::string_view name, Attributes attributes) {
  begin(name, attributes);
  document_ += "/>\n";
}

void SvgWriter::text(std::string_view name, std::string_view content, Attributes attributes) {
  begin(name, attributes);
  document_.append(">").append(escaped(content)).append("</").append(name).append(">\n");
}

void SvgWriter::begin(std::string_view name, Attributes attributes) {
  document_.append(2 * openElements_.size(), ' ').append("<").append(name);
  for (const Attribute& attribute : attributes) {
    document_.append(" ").append(attribute.name);
    document_.append("=\"").append(escaped(attribute.value)).append("\"");
  }
}

void SvgPath::add(char command, std::initializer_list<double> coordinates) {
  data_ += command;
  bool first = true;
  for (const double coordinate : coordinates) {
    if (!first) data_ += ' ';
    data_ += svgNumber(coordinate);
    first = false;
  }
}
