// Makes the head of a bitmap file.
#include "bitmapHeader.h"

#include <cstdint>

#include "rgbaPicture.h"

std::string bitmapHeader(int width, int height, int bitsPerPixel) {
  constexpr std::uint32_t headersSize = 14 + 40;
  constexpr std::uint32_t pixelsPerMeter = 3780;  // 96 dots per inch
  const std::uint32_t paletteEntries = bitsPerPixel == 8 ? 256U : 0U;
  const std::uint32_t offset = headersSize + 4 * paletteEntries;
  const std::uint32_t stride = (static_cast<std::uint32_t>(width * bitsPerPixel / 8) + 3U) & ~3U;
  const std::uint32_t pixelSize = stride * static_cast<std::uint32_t>(height);
  std::string bytes = "BM";
  appendLittleEndian(bytes, offset + pixelSize, 4);
  appendLittleEndian(bytes, 0, 4);
  appendLittleEndian(bytes, offset, 4);
  appendLittleEndian(bytes, 40, 4);
  appendLittleEndian(bytes, static_cast<std::uint32_t>(width), 4);
  appendLittleEndian(bytes, static_cast<std::uint32_t>(height), 4);
  appendLittleEndian(bytes, 1, 2);  // planes
  appendLittleEndian(bytes, static_cast<std::uint32_t>(bitsPerPixel), 2);
  appendLittleEndian(bytes, 0, 4);  // no compression
  appendLittleEndian(bytes, pixelSize, 4);
  appendLittleEndian(bytes, pixelsPerMeter, 4);
  appendLittleEndian(bytes, pixelsPerMeter, 4);
  appendLittleEndian(bytes, paletteEntries, 4);
  appendLittleEndian(bytes, 0, 4);  // all of them matter
  return bytes;
}
