// Implements text by one engine, made with the first text that is measured or drawn.
#include "graphics/linux/textRenderer.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "graphics/linux/textEngine.h"

namespace {

// Fonts are looked for when the first text asks for them, so that a run without text pays nothing.
TextEngine& engine() {
  static TextEngine theEngine;
  return theEngine;
}

}  // namespace

int characterHeightOf(int points, int dotsPerInch) {
  constexpr std::int64_t pointsPerInch = 72;
  const std::int64_t product = std::int64_t{points} * dotsPerInch;
  const std::int64_t half = product < 0 ? -pointsPerInch / 2 : pointsPerInch / 2;
  const std::int64_t height = (product + half) / pointsPerInch;
  return static_cast<int>(
      std::clamp<std::int64_t>(height, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

TextSize measureText(const std::string& text, const TextStyle& style) {
  return engine().measure(text, style);
}

void drawTextOn(Surface& surface, int x, int y, const std::string& text, const TextStyle& style,
                xplColor color, int alignment) {
  engine().draw(surface, x, y, text, style, color, alignment);
}
