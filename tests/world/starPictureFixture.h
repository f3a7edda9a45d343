// What the tests of the stars' pictures share: a star at rest, and its pixels computed apart from the
// program.
#pragma once

#include <cstdint>
#include <memory>

#include "harness/privateFolders.h"
#include "world/starWithPixels.h"

using Palette = PrivateFolders;

inline std::unique_ptr<cStarSpriteWithPixels> makeStar(float brightness) {
  return std::make_unique<cStarSpriteWithPixels>(2.0F, "normal star", brightness, 0.0F, 100.0F);
}

// The pixel of a star computed apart from the program, in whole steps of the rule.
inline xplColor expectedPixel(float brightness, int i, int j) {
  if (i + j >= 4) {
    return {0, 0, 0};
  }
  float v = (brightness - 0.25F * static_cast<float>(i)) * 255.0F * 7.0F / static_cast<float>(i + j + 1);
  const bool offAxis = i > 0 && j > 0;
  if (offAxis) {
    v = v * 0.5F / static_cast<float>(i + j);
  }
  const int c = v < 0.0F ? 0 : v > 255.0F ? 255 : static_cast<int>(v);
  const float blue = static_cast<float>(c) * (offAxis ? 4.0F : 1.4F);
  return {static_cast<std::uint8_t>(c), static_cast<std::uint8_t>(c),
          static_cast<std::uint8_t>(blue > 255.0F ? 255.0F : blue)};
}
