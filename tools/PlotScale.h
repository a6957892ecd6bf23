// The arithmetic of the plots: scales, ticks, and long lists reduced to columns of pixels.
#pragma once

#include <google/protobuf/repeated_field.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

// Maps [low, high] to pixels, from the pixel of low to that of high.
struct Scale {
  double low, high, fromPixel, toPixel;

  double operator()(double value) const {
    return fromPixel + (value - low) / (high - low) * (toPixel - fromPixel);
  }
};

// 1,234,567
std::string grouped(int64_t value);

struct Ticks {
  int64_t first, last, step;
};

// Round numbers in [low, high], at most maxSteps steps apart.
Ticks ticksWithin(int64_t low, int64_t high, int64_t maxSteps);

// Millions as 1.5M or 20M, so that the labels of the largest words stay short.
std::string tickLabel(int64_t value, const Ticks& ticks);

// The lowest and the highest word of a list, and zero, which every plot shows.
struct Extent {
  int64_t lowest = 0;
  int64_t highest = 0;

  // A list of zeros has a zero line nevertheless, in the middle of its plot.
  bool flat() const { return lowest == highest; }
  int64_t plotLow() const { return flat() ? -1 : lowest; }
  int64_t plotHigh() const { return flat() ? 1 : highest; }
};

template <typename Numbers>
Extent extentOf(const Numbers& numbers) {
  Extent extent;
  for (const int64_t number : numbers) {
    extent.lowest = std::min(extent.lowest, number);
    extent.highest = std::max(extent.highest, number);
  }
  return extent;
}

// The words that share one column of pixels.
struct Column {
  int32_t lowest, highest;
  double energyLeft;  // of the words from the column's first to the list's last
};

// At most maxColumns columns for words, of which there is at least one.
std::vector<Column> columnsOf(const google::protobuf::RepeatedField<int32_t>& words,
                              int maxColumns);
