// How a colour stands in a surface's memory.
#pragma once

#include <cstdint>

#include "graphics/color.h"

// Blue in the lowest byte, then green, red, and 255: colours on a surface are opaque.
constexpr std::uint32_t wordOfColor(xplColor color) {
  return 0xff000000U | (color.value() >> 8);
}

constexpr xplColor colorOfWord(std::uint32_t word) {
  return xplColor::fromValue((word << 8) | 0xffU);
}
