// What the tests of bitmaps share: a bitmap of four pixels, and the loading of files with one number changed.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "../imageBytes.h"
#include "graphics/linux/bitmapLoader.h"
#include "graphics/linux/surface.h"

// From bytes exactly as many, so that ASan sees over-reads.
inline LoadedBitmap load(const std::string& file) {
  const std::vector<std::uint8_t> bytes(file.begin(), file.end());
  return loadBitmapBytes(bytes);
}

// 2 x 2: red and green over blue and white, rows from the bottom up.
inline BitmapBytes fourPixels() {
  BitmapBytes bitmap;
  bitmap.width = 2;
  bitmap.height = 2;
  bitmap.pixels = bytesOf({255, 0, 0, 255, 255, 255, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0});
  return bitmap;
}

inline std::vector<std::uint32_t> wordsOf(const Surface& surface) {
  std::vector<std::uint32_t> words;
  for (int y = 0; y < surface.height(); ++y) {
    const std::uint32_t* row = surface.pixels() + static_cast<std::size_t>(y) * surface.stride();
    words.insert(words.end(), row, row + surface.width());
  }
  return words;
}

inline const std::vector<std::uint32_t> fourWords{0xffff0000U, 0xff00ff00U, 0xff0000ffU, 0xffffffffU};

// The file with another number at a place of its head.
inline std::string with(std::string file, std::size_t place, std::uint32_t value, int count) {
  return file.replace(place, static_cast<std::size_t>(count), littleEndian(value, count));
}

inline constexpr std::size_t placeOfOffset = 10;
inline constexpr std::size_t placeOfInfoSize = 14;
inline constexpr std::size_t placeOfWidth = 18;
inline constexpr std::size_t placeOfHeight = 22;
inline constexpr std::size_t placeOfDepth = 28;
inline constexpr std::size_t placeOfColorCount = 46;
