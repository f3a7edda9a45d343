// What the tests of images share: colours, a fixture that looks into the log, and pictures that tell their
// pixels.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/image.h"
#include "harness/privateFolders.h"

inline constexpr xplColor red(255, 0, 0);
inline constexpr xplColor green(0, 255, 0);
inline constexpr xplColor blue(0, 0, 255);

class ImageFixture : public PrivateFolders {
 protected:
  int entriesThatBegin(const std::string& start) const {
    int count = 0;
    for (const std::string& entry : logEntries()) {
      count += entry.rfind(start, 0) == 0 ? 1 : 0;
    }
    return count;
  }
};

// Every pixel, row by row.
inline std::vector<xplColor> pixelsOf(xplImage& image) {
  std::vector<xplColor> pixels;
  for (int y = 0; y < image.getHeight(); ++y) {
    for (int x = 0; x < image.getWidth(); ++x) {
      pixels.push_back(image.getPixel(x, y));
    }
  }
  return pixels;
}

// The colour that tells a place: red is its column, green its row.
inline xplColor place(int x, int y) {
  return {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 7};
}

inline void fillWithPlaces(xplImage& image, int width, int height) {
  image.initWithSizeAndColor(width, height, {});
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      image.setPixel(x, y, place(x, y));
    }
  }
}
