// The pictures of a star at a hundred brightnesses, shared by all stars.
#pragma once

#include <array>

#include "graphics/image.h"

// Made and destroyed with the stars: see cStarSpriteWithPixels.
class TstarImageBinder {
 public:
  static constexpr int imageCount = 100;
  static constexpr int imageSize = 7;  // pixels, square
  static constexpr int center = 3;     // the middle pixel's x and y
  // A quarter of a star: rows and columns count from the middle.
  using Quadrant = std::array<std::array<xplColor, 4>, 4>;

  // quadrantOf(brightness) gives the pixels of a star of that brightness, in [0, 1].
  explicit TstarImageBinder(Quadrant (*quadrantOf)(float brightness));

  // An index out of [0, 99] is logged and gives the nearest image. Valid as long as the binder.
  xplImage& getImageOf(int index);

 private:
  std::array<xplImage, imageCount> m_images;
};
