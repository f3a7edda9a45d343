// Implements the painting of glyphs.
#include "graphics/linux/glyphPainter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "graphics/linux/pixelWord.h"

namespace {

// How bright white text on black is at each level of coverage: GDI's values, close to 255 x (level / 16) ^
// 0.43, so that thin strokes look as strong on a screen as thick ones.
constexpr std::array<unsigned, Glyph::solid + 1> brightness{0,   77,  104, 124, 140, 154, 167, 178, 189,
                                                            199, 208, 217, 225, 233, 240, 248, 255};
// Pixels that the outline only grazes are left as they are.
constexpr unsigned leastVisibleLevel = 2;

// The channel goes the same part of its way to the text's as black (or, above the text's, white) would go, in
// whole numbers rounded down at each step.
unsigned blendedChannel(unsigned background, unsigned text, unsigned level) {
  if (background < text) {
    const unsigned missing = text - text * brightness[level] / 255;
    return text - (text - background) * missing / text;
  }
  if (background > text) {
    const unsigned left = (255 - text) * brightness[Glyph::solid - level] / 255;
    return text + (background - text) * left / (255 - text);
  }
  return text;
}

std::uint32_t blendedPixel(std::uint32_t background, std::uint32_t text, unsigned level) {
  std::uint32_t pixel = 0xff000000U;
  for (const unsigned shift : {16U, 8U, 0U}) {
    pixel |= blendedChannel((background >> shift) & 0xff, (text >> shift) & 0xff, level) << shift;
  }
  return pixel;
}

void paintAntialiased(std::uint32_t* target, const std::uint8_t* levels, int count, std::uint32_t text) {
  for (int i = 0; i < count; ++i) {
    const unsigned level = levels[i];
    if (level == Glyph::solid) {
      target[i] = text;
    } else if (level >= leastVisibleLevel) {
      target[i] = blendedPixel(target[i], text, level);
    }
  }
}

void paintPlain(std::uint32_t* target, const std::uint8_t* row, int first, int count, std::uint32_t text) {
  for (int i = 0; i < count; ++i) {
    const int column = first + i;
    if ((row[column / 8] & (0x80U >> (static_cast<unsigned>(column) % 8))) != 0) {
      target[i] = text;
    }
  }
}

// The columns or rows of a glyph that fall on the surface: [first, end).
struct Part {
  int first;
  int end;
};

Part partInside(std::int64_t start, int length, int surfaceLength) {
  return {static_cast<int>(std::clamp<std::int64_t>(-start, 0, length)),
          static_cast<int>(std::clamp<std::int64_t>(surfaceLength - start, 0, length))};
}

}  // namespace

void paintGlyph(Surface& surface, std::int64_t penX, std::int64_t baselineY, const Glyph& glyph,
                xplColor color) {
  const std::int64_t left = penX + glyph.left;
  const std::int64_t top = baselineY - glyph.top;
  const Part columns = partInside(left, glyph.width, surface.width());
  const Part rows = partInside(top, glyph.height, surface.height());
  const std::uint32_t text = wordOfColor(color);
  for (int row = rows.first; row < rows.end && columns.first < columns.end; ++row) {
    const std::uint8_t* source = glyph.bits.data() + static_cast<std::size_t>(row) * glyph.pitch;
    std::uint32_t* target =
        surface.pixels() + static_cast<std::size_t>(top + row) * surface.stride() + (left + columns.first);
    surface.touched(static_cast<int>(top + row), static_cast<int>(left + columns.first),
                    static_cast<int>(left + columns.end));
    if (glyph.antialiased) {
      paintAntialiased(target, source + columns.first, columns.end - columns.first, text);
    } else {
      paintPlain(target, source, columns.first, columns.end - columns.first, text);
    }
  }
}
