// Where each message field stands in its engine struct: by field number and byte offset, stated
// apart from the library's own field lists, so that the two can be held against each other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zortest {

struct Layout;

// count scalars of consecutive field numbers that lie side by side, width bytes each.
struct Run {
  int number = 0;
  std::size_t offset = 0;
  std::size_t width = 0;
  int count = 0;
};

// A list. An open one is kept whole by the wrapper's message.
struct Array {
  int number = 0;
  std::size_t offset = 0;
  int capacity = 0;
  bool open = false;
};

enum class Travels { kBothWays, kToStruct, kToMessage };

struct Block {
  int number = 0;
  std::size_t offset = 0;
  const Layout* layout = nullptr;
  Travels travels = Travels::kBothWays;
};

// A field that is never loaded: its member always becomes 0.
struct ZeroWord {
  int number = 0;
  std::size_t offset = 0;
};

struct Layout {
  std::vector<Run> runs;
  std::vector<Array> arrays = {};
  std::vector<Block> blocks = {};
  std::vector<ZeroWord> zeroWords = {};
  std::string fixedFields = {};  // wire bytes that a load from a struct adds
  std::string emptyFields = {};  // wire bytes that a load from a message without them adds
};

// kCoefDeep leaves out its borrowed string.
extern const Layout kImm3d, kExpanse, kDeep, kVantix, kXeq, kContour2, kGeq10b, kOrb, kLeveler,
    kCoefXeq, kCoefHpf, kCoefDeep, kFaderInfo, kPremix, kPostmix;

// What a field holds, by its offset and width in the outermost struct, and how long a list is.
using ValueAt = std::function<int32_t(std::size_t offset, std::size_t width)>;
using CountOf = std::function<int(const Array&)>;

int32_t distinctValue(std::size_t offset, std::size_t width);  // of either sign, fits its width
int32_t zero(std::size_t offset, std::size_t width);
int capacityOf(const Array& array);

constexpr unsigned char kPoison = 0xA5;

// The wire bytes of a message with every field set: nested messages that travel this way included,
// or none at all.
enum class Depth { kToStruct, kToMessage, kOwnFields };
std::string wireOf(const Layout& layout, Depth depth, const ValueAt& value = distinctValue,
                   const CountOf& count = capacityOf, std::size_t base = 0);

// Writes what a struct of this layout holds over bytes, and nothing else.
void fillImage(const Layout& layout, Depth depth, const ValueAt& value, const CountOf& count,
               unsigned char* bytes, std::size_t base = 0);

}  // namespace zortest
