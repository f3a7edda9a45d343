// Implements the setting of lines.
#include "graphics/linux/textEngine.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "graphics/linux/glyphPainter.h"
#include "graphics/linux/utf8.h"
#include "support/log.h"

namespace {

// A text without a height has lines of this many pixels, as with GDI.
constexpr int defaultLineHeight = 16;
// Larger characters would cover a whole screen, and take memory by the square of their height.
constexpr int maxCharacterHeight = 4096;

// Drawn as the face's picture of a missing character, as GDI does: tabs too are not expanded.
bool isControl(char32_t character) {
  return character < U' ' || character == 0x7F;
}

bool endsLine(char character) {
  return character == '\n' || character == '\r';
}

// Calls visit(line) for each line of a text up to its first zero byte. A line feed, a carriage return, or one
// of each in either order ends a line; no line begins behind the last one's end, so an empty text has no line
// at all.
template <class Visit>
void forEachLine(const std::string& text, Visit visit) {
  for (std::string_view rest = text.c_str(); !rest.empty();) {
    const auto end =
        static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), endsLine) - rest.begin());
    visit(rest.substr(0, end));
    const bool isEndOfPair = end + 1 < rest.size() && endsLine(rest[end + 1]) && rest[end + 1] != rest[end];
    rest.remove_prefix(std::min(end + (isEndOfPair ? 2 : 1), rest.size()));
  }
}

// Lines are measured by other advances than they are drawn with; only spaced lines are drawn by those too. It
// is GDI's way, and centred and right-aligned texts stand where GDI puts them because of it.
std::int64_t stepAfter(const Glyph& glyph, int spacing) {
  return spacing == 0 ? glyph.advance : std::int64_t{glyph.measuredAdvance} + spacing;
}

int clampedToInt(std::int64_t value) {
  return static_cast<int>(
      std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace

bool TextEngine::select(const TextStyle& style, Font& font) {
  font.request = {style.fontName, style.thin};
  font.face = m_fonts.faceFor(font.request);
  font.height = heightOf(font.face, style.characterHeight);
  font.antialiased = style.antialiased;
  font.spacing = style.characterSpacing;
  if (!findMetrics(font)) {
    reportMissingFont(style.fontName);
    return false;
  }
  return true;
}

int TextEngine::heightOf(int face, int characterHeight) {
  int height = characterHeight;
  if (characterHeight <= 0) {
    const int lineHeight =
        characterHeight == 0 ? defaultLineHeight : -std::max(characterHeight, -maxCharacterHeight);
    const FontFace* open = m_fonts.open(face);
    height = open != nullptr ? open->heightForLineHeight(lineHeight) : lineHeight;
  }
  return std::clamp(height, 1, maxCharacterHeight);
}

bool TextEngine::findMetrics(Font& font) {
  const std::pair key{font.face, font.height};
  const auto known = m_metrics.find(key);
  if (known != m_metrics.end()) {
    font.metrics = known->second;
    return true;
  }
  FontFace* face = m_fonts.open(font.face);
  if (face == nullptr || !face->setHeight(font.height)) {
    return false;
  }
  if (m_metrics.size() >= maxMetrics) {
    m_metrics.clear();
  }
  font.metrics = m_metrics[key] = face->metrics();
  return true;
}

void TextEngine::reportMissingFont(const std::string& faceName) {
  if (!m_missingFontReported) {
    m_missingFontReported = true;
    logError().addf("No usable font for \"%s\" on this system: texts are not drawn", faceName.c_str());
  }
}

const Glyph& TextEngine::glyphOf(const Font& font, int face, unsigned glyphIndex) {
  const GlyphKey key{face, font.height, glyphIndex, font.antialiased};
  if (const Glyph* kept = m_glyphs.find(key)) {
    return *kept;
  }
  FontFace* open = m_fonts.open(face);
  const bool usable = open != nullptr && open->setHeight(font.height);
  return m_glyphs.add(key, usable ? open->render(glyphIndex, font.antialiased) : Glyph{});
}

const Glyph& TextEngine::glyphOf(const Font& font, char32_t character) {
  const FontFace* own = m_fonts.open(font.face);
  if (const unsigned index = own == nullptr ? 0 : own->glyphIndexOf(character)) {
    return glyphOf(font, font.face, index);
  }
  const int other =
      isControl(character) ? FontCache::noFace : m_fonts.faceWithCharacter(font.request, character);
  const FontFace* fallback = m_fonts.open(other);
  if (const unsigned index = fallback == nullptr ? 0 : fallback->glyphIndexOf(character)) {
    return glyphOf(font, other, index);
  }
  return glyphOf(font, font.face, 0);
}

std::int64_t TextEngine::lineWidth(const Font& font, std::string_view line) {
  std::int64_t width = 0;
  forEachCharacter(line, [&](char32_t character) {
    width += std::int64_t{glyphOf(font, character).measuredAdvance} + font.spacing;
  });
  return width;
}

std::int64_t TextEngine::leftEdge(const Font& font, std::string_view line, int x, int alignment) {
  if (alignment == xplTextDrawingInfo::alignRight) {
    return x - lineWidth(font, line);
  }
  if (alignment == xplTextDrawingInfo::alignCentered) {
    return (2 * std::int64_t{x} - lineWidth(font, line)) / 2;
  }
  return x;
}

void TextEngine::drawLine(Surface& surface, std::int64_t pen, std::int64_t baseline, const Font& font,
                          std::string_view line, xplColor color) {
  forEachCharacter(line, [&](char32_t character) {
    const Glyph& glyph = glyphOf(font, character);
    paintGlyph(surface, pen, baseline, glyph, color);
    pen += stepAfter(glyph, font.spacing);
  });
}

TextSize TextEngine::measure(const std::string& text, const TextStyle& style) {
  Font font;
  if (!select(style, font)) {
    return {};
  }
  std::int64_t width = 0;
  std::int64_t height = 0;
  forEachLine(text, [&](std::string_view line) {
    width = std::max(width, lineWidth(font, line));
    height += font.metrics.lineHeight();
  });
  return {clampedToInt(width), clampedToInt(height)};
}

void TextEngine::draw(Surface& surface, int x, int y, const std::string& text, const TextStyle& style,
                      xplColor color, int alignment) {
  Font font;
  if (!select(style, font)) {
    return;
  }
  std::int64_t baseline = std::int64_t{y} + font.metrics.ascent;
  forEachLine(text, [&](std::string_view line) {
    drawLine(surface, leftEdge(font, line, x, alignment), baseline, font, line, color);
    baseline += font.metrics.lineHeight();
  });
}
