// A picture of up to 256 colours, and the bitmap file that holds it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
};

// One byte a pixel, row by row from the top, each an index into the palette.
struct IndexedBitmap {
  int width = 0;   // pixels
  int height = 0;  // pixels
  std::array<Rgb, 256> palette{};
  std::vector<std::uint8_t> pixels;

  IndexedBitmap(int aWidth, int aHeight)
      : width(aWidth),
        height(aHeight),
        pixels(static_cast<std::size_t>(aWidth) * static_cast<std::size_t>(aHeight)) {}
  std::uint8_t& at(int x, int y) {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }
};

// Writes an uncompressed 8-bit bitmap file; throws std::runtime_error with the file's name where it cannot.
void writeBitmap(const IndexedBitmap& bitmap, const std::string& filename);
