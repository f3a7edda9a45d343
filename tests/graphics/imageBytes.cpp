// Implements the making of bitmap files.
#include "imageBytes.h"

std::string littleEndian(std::uint32_t value, int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) {
    bytes += static_cast<char>((value >> (8 * i)) & 0xff);
  }
  return bytes;
}

std::string bytesOf(const std::vector<int>& values) {
  std::string bytes;
  for (const int value : values) {
    bytes += static_cast<char>(value);
  }
  return bytes;
}

std::string BitmapBytes::file() const {
  const bool hasMasks = compression == 3;
  const std::string colors = [this] {
    std::string result;
    for (const std::uint32_t color : palette) {
      result += littleEndian(color, 4);
    }
    return result;
  }();
  const auto offset = static_cast<std::uint32_t>(14 + 40 + colors.size());
  const auto size = static_cast<std::uint32_t>(offset + pixels.size());
  std::string bytes = "BM" + littleEndian(size, 4) + littleEndian(0, 4) + littleEndian(offset, 4);
  bytes += littleEndian(40, 4) + littleEndian(static_cast<std::uint32_t>(width), 4);
  bytes += littleEndian(static_cast<std::uint32_t>(height), 4) + littleEndian(1, 2);
  bytes += littleEndian(static_cast<std::uint32_t>(bitsPerPixel), 2) + littleEndian(compression, 4);
  bytes += littleEndian(0, 4) + littleEndian(0, 4) + littleEndian(0, 4);
  bytes += littleEndian(hasMasks ? 0 : static_cast<std::uint32_t>(palette.size()), 4) + littleEndian(0, 4);
  return bytes + colors + pixels;
}
