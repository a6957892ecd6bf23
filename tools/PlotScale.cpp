#include "PlotScale.h"

#include <cstddef>
#include <cstdlib>
#include <string_view>

namespace {

constexpr std::string_view kMinus = "\u2212";

// The smallest of 1, 2, 5, 10, 20 and so on that divides range into at most maxSteps.
int64_t roundStep(int64_t range, int64_t maxSteps) {
  for (int64_t decade = 1;; decade *= 10) {
    for (const int64_t step : {decade, 2 * decade, 5 * decade}) {
      if (range <= step * maxSteps) return step;
    }
  }
}

}  // namespace

std::string grouped(int64_t value) {
  std::string digits = std::to_string(std::abs(value));
  for (auto left = static_cast<int>(digits.size()) - 3; left > 0; left -= 3) {
    digits.insert(static_cast<std::size_t>(left), ",");
  }
  return (value < 0 ? std::string(kMinus) : "") + digits;
}

Ticks ticksWithin(int64_t low, int64_t high, int64_t maxSteps) {
  const int64_t step = roundStep(high - low, maxSteps);
  const auto above = [step](int64_t value) { return (value + (value > 0 ? step - 1 : 0)) / step; };
  return {above(low) * step, -above(-high) * step, step};
}

// One decimal is enough: as an axis has fewer than ten ticks, those of an axis in millions lie at
// least 0.1M apart.
std::string tickLabel(int64_t value, const Ticks& ticks) {
  constexpr int64_t kMillion = 1000000;
  const bool inMillions = std::max(-ticks.first, ticks.last) >= kMillion;
  if (!inMillions || value == 0) return grouped(value);
  const int64_t magnitude = std::abs(value);
  std::string label = (value < 0 ? std::string(kMinus) : "") + grouped(magnitude / kMillion);
  if (ticks.step < kMillion) {
    label += "." + std::to_string(magnitude % kMillion / (kMillion / 10));
  }
  return label + "M";
}

// The energy is integrated backward, from the last word to the first (M. R. Schroeder, "New Method
// of Measuring Reverberation Time", JASA 37, 1965). A double holds the sum of as many squares as a
// list can have; the small ones at the end come first, so that they count.
std::vector<Column> columnsOf(const google::protobuf::RepeatedField<int32_t>& words,
                              int maxColumns) {
  const int64_t count = words.size();
  const int64_t columnCount = std::min<int64_t>(count, maxColumns);
  std::vector<Column> columns(static_cast<std::size_t>(columnCount), {INT32_MAX, INT32_MIN, 0});
  double energy = 0;
  for (int i = words.size() - 1; i >= 0; --i) {
    const int32_t word = words[i];
    Column& column = columns[static_cast<std::size_t>(i * columnCount / count)];
    energy += static_cast<double>(word) * word;
    column = {std::min(column.lowest, word), std::max(column.highest, word), energy};
  }
  return columns;
}
