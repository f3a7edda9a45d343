// What the tests of the text engine share: texts drawn on a small black picture.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "graphics/linux/textEngine.h"
#include "harness/privateFolders.h"

inline constexpr xplColor white(255, 255, 255);
inline constexpr int left = xplTextDrawingInfo::alignLeft;

inline TextStyle styleOf(const std::string& face, int height, bool antialiased = false) {
  TextStyle style;
  style.fontName = face;
  style.characterHeight = height;
  style.antialiased = antialiased;
  return style;
}

// All pixels of a black picture with the text on it.
inline std::vector<std::uint32_t> drawn(TextEngine& engine, const std::string& text, const TextStyle& style) {
  Surface surface(120, 40);
  surface.fillRect({0, 0, 120, 40}, {});
  engine.draw(surface, 4, 4, text, style, white, left);
  return {surface.pixels(), surface.pixels() + surface.stride() * 40};
}

inline bool isBlank(const std::vector<std::uint32_t>& pixels) {
  for (const std::uint32_t pixel : pixels) {
    if (pixel != 0xff000000U) {
      return false;
    }
  }
  return true;
}

class TextEngineTest : public PrivateFolders {
 protected:
  TextEngine engine;
};
