// Colours in fractions of a level, and their way into a palette.
#pragma once

#include <algorithm>
#include <cstdint>

#include "indexedBitmap.h"

// Channels in levels, 0 to 255.
struct SkyColor {
  double red = 0.0;
  double green = 0.0;
  double blue = 0.0;
};

inline std::uint8_t toByte(double value) {
  return static_cast<std::uint8_t>(std::clamp(value + 0.5, 0.0, 255.0));
}

inline Rgb toRgb(const SkyColor& color) {
  return {toByte(color.red), toByte(color.green), toByte(color.blue)};
}

// a where t is 0, b where t is 1.
inline SkyColor mix(const SkyColor& a, const SkyColor& b, double t) {
  return {a.red + (b.red - a.red) * t, a.green + (b.green - a.green) * t, a.blue + (b.blue - a.blue) * t};
}
