// Sets lines of text in the system's fonts, with caches of faces and glyphs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "graphics/linux/fontCache.h"
#include "graphics/linux/glyphCache.h"
#include "graphics/linux/surface.h"
#include "graphics/linux/textRenderer.h"

// The functions of textRenderer.h share one; a test may make its own. For one thread at a time. A text whose
// glyphs are kept is measured and drawn without taking memory.
class TextEngine {
 public:
  TextSize measure(const std::string& text, const TextStyle& style);
  void draw(Surface& surface, int x, int y, const std::string& text, const TextStyle& style, xplColor color,
            int alignment);

  const GlyphCache& glyphs() const { return m_glyphs; }

 private:
  // A style's face at its height.
  struct Font {
    FontRequest request;
    int face = FontCache::noFace;
    int height = 0;  // em height in pixels
    bool antialiased = true;
    int spacing = 0;  // extra pixels after each character
    FontMetrics metrics;
  };
  static constexpr std::size_t maxGlyphBytes = std::size_t{2} << 20;
  static constexpr std::size_t maxMetrics = 256;

  // False (and, once, an error entry) where there is no font.
  bool select(const TextStyle& style, Font& font);
  // The em height for a TextStyle's character height.
  int heightOf(int face, int characterHeight);
  bool findMetrics(Font& font);
  const Glyph& glyphOf(const Font& font, char32_t character);
  const Glyph& glyphOf(const Font& font, int face, unsigned glyphIndex);
  std::int64_t lineWidth(const Font& font, std::string_view line);
  std::int64_t leftEdge(const Font& font, std::string_view line, int x, int alignment);
  void drawLine(Surface& surface, std::int64_t pen, std::int64_t baseline, const Font& font,
                std::string_view line, xplColor color);
  void reportMissingFont(const std::string& faceName);

  FontCache m_fonts;
  GlyphCache m_glyphs{maxGlyphBytes};
  std::map<std::pair<int, int>, FontMetrics> m_metrics;  // by face and height
  bool m_missingFontReported = false;
};
