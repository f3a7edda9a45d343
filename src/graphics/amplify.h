// The arithmetic of amplifying a pixel, the same on every platform.
#pragma once

#include <cstdint>

#include "graphics/color.h"

// Deliberate: a product of 255 or more becomes 255, but a smaller one keeps its low 8 bits, so a negative
// product wraps to a bright value. The moon's shading is computed with this; clamping at 0 would change it.
constexpr std::uint8_t amplifiedChannel(std::uint8_t channel, float factor) {
  const float product = static_cast<float>(channel) * factor;
  if (product >= 255.0F) {
    return 255;
  }
  // Whole numbers outside the range of 64 bits have nothing but zeros in their low 8 bits.
  constexpr float lowest = -9.0e18F;
  return product > lowest ? static_cast<std::uint8_t>(static_cast<std::int64_t>(product) & 0xff)
                          : std::uint8_t{0};
}

// The colour with each channel times its factor; alpha is 255.
constexpr xplColor amplified(xplColor color, float redFactor, float greenFactor, float blueFactor) {
  return {amplifiedChannel(color.red(), redFactor), amplifiedChannel(color.green(), greenFactor),
          amplifiedChannel(color.blue(), blueFactor)};
}
