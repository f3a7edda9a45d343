// Bitmap files made by hand, byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct BitmapBytes {
  std::int32_t width = 0;
  std::int32_t height = 0;  // negative: the rows go from the top down
  int bitsPerPixel = 24;
  std::uint32_t compression = 0;
  std::vector<std::uint32_t>
      palette;         // 0x00RRGGBB; for bitsPerPixel up to 8 (compression 3: the channel masks)
  std::string pixels;  // as they stand in the file

  // The whole file.
  std::string file() const;
};

// The number's lowest bytes, lowest first.
std::string littleEndian(std::uint32_t value, int count);
// Bytes given as numbers.
std::string bytesOf(const std::vector<int>& values);
