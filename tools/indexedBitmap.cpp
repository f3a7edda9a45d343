// Writes 8-bit bitmap files.
#include "indexedBitmap.h"

#include <fstream>
#include <stdexcept>

namespace {

constexpr std::uint32_t fileHeaderSize = 14;
constexpr std::uint32_t infoHeaderSize = 40;
constexpr std::uint32_t paletteSize = 256 * 4;
constexpr std::uint32_t pixelsPerMeter = 3780;  // 96 dots per inch

void put(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) {
    bytes += static_cast<char>((value >> (8 * i)) & 0xffU);
  }
}

}  // namespace

void writeBitmap(const IndexedBitmap& bitmap, const std::string& filename) {
  const std::uint32_t stride = (static_cast<std::uint32_t>(bitmap.width) + 3U) & ~3U;
  const std::uint32_t pixelSize = stride * static_cast<std::uint32_t>(bitmap.height);
  const std::uint32_t offset = fileHeaderSize + infoHeaderSize + paletteSize;
  std::string bytes = "BM";
  put(bytes, offset + pixelSize, 4);
  put(bytes, 0, 4);
  put(bytes, offset, 4);
  put(bytes, infoHeaderSize, 4);
  put(bytes, static_cast<std::uint32_t>(bitmap.width), 4);
  put(bytes, static_cast<std::uint32_t>(bitmap.height), 4);
  put(bytes, 1, 2);  // planes
  put(bytes, 8, 2);  // bits a pixel
  put(bytes, 0, 4);  // no compression
  put(bytes, pixelSize, 4);
  put(bytes, pixelsPerMeter, 4);
  put(bytes, pixelsPerMeter, 4);
  put(bytes, 256, 4);  // colours
  put(bytes, 0, 4);
  for (const Rgb& color : bitmap.palette) {
    put(bytes, color.blue, 1);
    put(bytes, color.green, 1);
    put(bytes, color.red, 1);
    put(bytes, 0, 1);
  }
  const auto width = static_cast<std::size_t>(bitmap.width);
  for (int y = bitmap.height - 1; y >= 0; --y) {
    bytes.append(
        bitmap.pixels.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(y) * width),
        bitmap.pixels.begin() + static_cast<std::ptrdiff_t>((static_cast<std::size_t>(y) + 1) * width));
    bytes.append(stride - width, '\0');
  }
  std::ofstream file(filename, std::ios::binary | std::ios::trunc);
  if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
    throw std::runtime_error("cannot write " + filename);
  }
}
