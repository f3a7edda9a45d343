// Truncation of a place on screen to whole pixels.
#pragma once

#include <limits>

// Towards zero; a value that no int holds becomes the nearest one that does, and one that is no number
// becomes 0.
constexpr int wholePixel(double value) {
  if (value >= static_cast<double>(std::numeric_limits<int>::max())) {
    return std::numeric_limits<int>::max();
  }
  if (value <= static_cast<double>(std::numeric_limits<int>::min())) {
    return std::numeric_limits<int>::min();
  }
  return value == value ? static_cast<int>(value) : 0;
}
