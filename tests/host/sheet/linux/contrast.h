// How well a colour can be read on another.
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

// What the guidelines for web content (WCAG 2.1, level AA) ask of texts.
inline constexpr double readableContrast = 4.5;

// The contrast of two colours, in [1, 21], as those guidelines define it.
inline double contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& colour) {
    const auto linear = [](double part) {
      return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
  };
  const auto [low, high] = std::minmax({luminance(one), luminance(other)});
  return (high + 0.05) / (low + 0.05);
}
