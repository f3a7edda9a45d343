// A picture of 8-bit red, green, blue and alpha, and the files that hold it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Rgba {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t alpha = 255;
};

// Row by row from the top.
struct RgbaPicture {
  int width = 0;   // pixels
  int height = 0;  // pixels
  std::vector<Rgba> pixels;

  RgbaPicture() = default;
  RgbaPicture(int aWidth, int aHeight)
      : width(aWidth),
        height(aHeight),
        pixels(static_cast<std::size_t>(aWidth) * static_cast<std::size_t>(aHeight)) {}
  Rgba& at(int x, int y) { return pixels[indexOf(x, y)]; }
  const Rgba& at(int x, int y) const { return pixels[indexOf(x, y)]; }

 private:
  std::size_t indexOf(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
  }
};

// Appends the lowest bytes of value, the lowest first.
void appendLittleEndian(std::string& bytes, std::uint32_t value, int count);

// Writes bytes as the whole of a file; throws std::runtime_error with the file's name where it cannot.
void writeFile(std::string_view bytes, const std::string& filename);

// The bytes of a PNG file with alpha.
std::string pngBytes(const RgbaPicture& picture);

// Writes an uncompressed 24-bit bitmap file, without alpha; throws like writeFile.
void writeBitmap(const RgbaPicture& picture, const std::string& filename);

// Reads an uncompressed bitmap file of 8 or 24 bits; throws std::runtime_error where it is none.
RgbaPicture readBitmap(const std::string& filename);
