// Implements the painting of glyphs.
#include "graphics/linux/glyphPainter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

// One channel between the background and the text's, by the share of the pixel that the glyph covers (of
// 255).
std::uint32_t blendedChannel(std::uint32_t background, std::uint32_t text, std::uint32_t coverage) {
  return (background * (255 - coverage) + text * coverage + 127) / 255;
}

std::uint32_t blendedPixel(std::uint32_t background, xplColor color, std::uint32_t coverage) {
  const std::uint32_t red = blendedChannel((background >> 16) & 0xff, color.red(), coverage);
  const std::uint32_t green = blendedChannel((background >> 8) & 0xff, color.green(), coverage);
  const std::uint32_t blue = blendedChannel(background & 0xff, color.blue(), coverage);
  return 0xff000000U | (red << 16) | (green << 8) | blue;
}

// Share of the pixel that the glyph covers, of 255.
std::uint32_t coverageAt(const Glyph& glyph, const std::uint8_t* row, int column) {
  const auto place = static_cast<std::size_t>(column);
  if (glyph.antialiased) {
    return row[place];
  }
  return (row[place / 8] & (0x80U >> (place % 8))) != 0 ? 255 : 0;
}

}  // namespace

void paintGlyph(Surface& surface, int penX, int baselineY, const Glyph& glyph, xplColor color) {
  const int left = penX + glyph.left;
  const int top = baselineY - glyph.top;
  const int firstColumn = std::max(0, -left);
  const int lastColumn = std::min(glyph.width, surface.width() - left);
  const int firstRow = std::max(0, -top);
  const int lastRow = std::min(glyph.height, surface.height() - top);
  for (int row = firstRow; row < lastRow; ++row) {
    const std::uint8_t* source = glyph.bits.data() + static_cast<std::size_t>(row) * glyph.pitch;
    std::uint32_t* target = surface.pixels() + static_cast<std::size_t>(top + row) * surface.stride();
    for (int column = firstColumn; column < lastColumn; ++column) {
      const std::uint32_t coverage = coverageAt(glyph, source, column);
      if (coverage != 0) {
        std::uint32_t& pixel = target[left + column];
        pixel = blendedPixel(pixel, color, coverage);
      }
    }
  }
}
