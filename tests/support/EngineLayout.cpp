#include "EngineLayout.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "Wire.h"

namespace zortest {
namespace {

bool travels(const Block& block, Depth depth) {
  if (depth == Depth::kOwnFields) return false;
  return block.travels == Travels::kBothWays ||
         (block.travels == Travels::kToStruct) == (depth == Depth::kToStruct);
}

}  // namespace

const Layout kImm3d{{{1, 0, 4, 4}, {5, 16, 2, 5}}};
const Layout kExpanse{{{1, 0, 4, 2}, {3, 8, 2, 4}}};
const Layout kDeep{{{1, 0, 4, 7}, {8, 28, 2, 7}}};
const Layout kVantix{
    {{10, 88, 4, 6}, {16, 112, 2, 5}}, {}, {{1, 0, &kImm3d}, {2, 28, &kExpanse}, {3, 44, &kDeep}}};
const Layout kXeq{{{1, 0, 4, 1}, {2, 4, 2, 3}}};
const Layout kContour2{{{1, 0, 4, 8}, {11, 88, 4, 2}}, {{9, 32, 7}, {10, 60, 7}}};
const Layout kGeq10b{{{1, 0, 4, 1}, {2, 4, 2, 11}}};
const Layout kOrb{{{1, 0, 4, 6}}, {{8, 24, 4, true}}};
const Layout kLeveler{{{1, 0, 4, 3}, {4, 12, 2, 3}}};
const Layout kCoefXeq{{},
                      {{4, 0, 672, true}},
                      {},
                      {},
                      Wire().text(1, "00000000-0000-0000-0000-000000000000").sint(2, 48000).bytes(),
                      Wire().text(1, "").sint(2, 0).bytes()};
const Layout kCoefHpf{{}, {{5, 4, 20, true}}, {}, {{3, 0}}};
const Layout kCoefDeep{{{2, 0, 4, 2}, {4, 104 + sizeof(char*), 4, 1}}, {{5, 8, 24, true}}};
const Layout kFaderInfo{{{1, 0, 4, 5}}};
const Layout kPremix{
    {{3, 116, 4, 2}}, {}, {{1, 0, &kLeveler}, {2, 20, &kContour2}, {5, 124, &kFaderInfo}}};
const Layout kPostmix{{{1, 0, 4, 6}, {10, 96, 4, 1}},
                      {{7, 24, 6},
                       {8, 48, 6},
                       {9, 72, 6},
                       {22, 400, 8210},
                       {23, 33240, 3085},
                       {24, 45580, 3085},
                       {25, 57920, 135}},
                      {{11, 100, &kVantix},
                       {12, 224, &kGeq10b},
                       {13, 252, &kXeq},
                       {14, 264, &kContour2},
                       {15, 360, &kOrb},
                       {18, 58460, &kCoefHpf, Travels::kToStruct},
                       {19, 58544, &kCoefXeq},
                       {21, 61440, &kFaderInfo, Travels::kToMessage}}};

int32_t distinctValue(std::size_t offset, std::size_t width) {
  const int32_t size = static_cast<int32_t>(offset) + (width == 2 ? 1000 : 1 << 24);
  return offset / width % 2 == 0 ? size : -size;
}

int32_t zero(std::size_t /*offset*/, std::size_t /*width*/) { return 0; }

int capacityOf(const Array& array) { return array.capacity; }

std::string wireOf(const Layout& layout, Depth depth, const ValueAt& value, const CountOf& count,
                   std::size_t base) {
  std::map<int, std::string> fields;
  for (const Run& run : layout.runs) {
    for (int i = 0; i < run.count; ++i) {
      const auto at = base + run.offset + run.width * static_cast<std::size_t>(i);
      fields[run.number + i] = Wire().sint(run.number + i, value(at, run.width)).bytes();
    }
  }
  for (const Array& array : layout.arrays) {
    for (int i = 0; i < count(array); ++i) {
      const auto at = base + array.offset + 4 * static_cast<std::size_t>(i);
      fields[array.number] += Wire().sint(array.number, value(at, 4)).bytes();
    }
  }
  for (const Block& block : layout.blocks) {
    if (!travels(block, depth)) continue;
    fields[block.number] =
        Wire()
            .text(block.number, wireOf(*block.layout, depth, value, count, base + block.offset))
            .bytes();
  }
  std::string wire;
  if (depth == Depth::kToMessage) wire = layout.fixedFields;
  if (depth == Depth::kOwnFields) wire = layout.emptyFields;
  for (const auto& field : fields) wire += field.second;
  return wire;
}

void fillImage(const Layout& layout, Depth depth, const ValueAt& value, const CountOf& count,
               unsigned char* bytes, std::size_t base) {
  const auto put = [&](std::size_t offset, std::size_t width) {
    const int32_t wide = value(base + offset, width);
    const auto narrow = static_cast<int16_t>(wide);
    std::memcpy(bytes + base + offset, width == 2 ? static_cast<const void*>(&narrow) : &wide,
                width);
  };
  for (const Run& run : layout.runs) {
    for (int i = 0; i < run.count; ++i) {
      put(run.offset + run.width * static_cast<std::size_t>(i), run.width);
    }
  }
  for (const Array& array : layout.arrays) {
    for (int i = 0; i < std::min(count(array), array.capacity); ++i) {
      put(array.offset + 4 * static_cast<std::size_t>(i), 4);
    }
  }
  for (const ZeroWord& word : layout.zeroWords) std::memset(bytes + base + word.offset, 0, 4);
  for (const Block& block : layout.blocks) {
    if (travels(block, depth)) {
      fillImage(*block.layout, depth, value, count, bytes, base + block.offset);
    }
  }
}

}  // namespace zortest
