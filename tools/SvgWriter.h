// Writes SVG: elements that nest, attributes and text that are escaped, numbers that do not depend
// on the locale.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// With at most two decimals: a hundredth of a pixel is finer than any screen.
std::string svgNumber(double value);

// What XML cannot hold becomes U+FFFD: bytes that are not UTF-8 (RFC 3629) and characters that no
// escape makes legal, such as U+0000.
std::string wellFormed(std::string_view text);

class SvgWriter {
 public:
  struct Attribute {
    Attribute(std::string_view attributeName, std::string_view text)
        : name(attributeName), value(text) {}
    Attribute(std::string_view attributeName, double number)
        : name(attributeName), value(svgNumber(number)) {}

    std::string_view name;
    std::string value;
  };
  using Attributes = std::initializer_list<Attribute>;

  void open(std::string_view name, Attributes attributes);
  void close();
  void leaf(std::string_view name, Attributes attributes);
  void text(std::string_view name, std::string_view content, Attributes attributes = {});

  const std::string& document() const { return document_; }

 private:
  void begin(std::string_view name, Attributes attributes);

  std::string document_;
  std::vector<std::string> openElements_;
};

// The outline of a <path>, in absolute coordinates.
class SvgPath {
 public:
  void moveTo(double x, double y) { add('M', {x, y}); }
  void lineTo(double x, double y) { add('L', {x, y}); }
  void horizontalTo(double x) { add('H', {x}); }
  void verticalTo(double y) { add('V', {y}); }

  const std::string& data() const { return data_; }

 private:
  void add(char command, std::initializer_list<double> coordinates);

  std::string data_;
};
