// Implements the setting of lines.
#include "graphics/linux/textEngine.h"

#include <algorithm>
#include <vector>

#include "graphics/linux/glyphPainter.h"
#include "graphics/linux/utf8.h"
#include "support/log.h"

namespace {

// What a font of height 0 is drawn with, as GDI does.
constexpr int defaultCharacterHeight = 12;
// Larger characters would cover a whole screen, and take memory by the square of their height.
constexpr int maxCharacterHeight = 4096;

// The characters of a text up to its first zero byte, by lines: "\n" and "\r\n" end one.
std::vector<std::u32string> linesOf(const std::string& text) {
  const std::u32string characters = decodeUtf8(text.c_str());
  std::vector<std::u32string> lines(1);
  for (std::size_t i = 0; i < characters.size(); ++i) {
    if (characters[i] == U'\n') {
      lines.emplace_back();
    } else if (characters[i] != U'\r' || i + 1 == characters.size() || characters[i + 1] != U'\n') {
      lines.back().push_back(characters[i]);
    }
  }
  return lines;
}

int leftEdge(int x, int width, int alignment) {
  if (alignment == xplTextDrawingInfo::alignRight) {
    return x - width;
  }
  return alignment == xplTextDrawingInfo::alignCentered ? (2 * x - width) / 2 : x;
}

}  // namespace

bool TextEngine::select(const TextStyle& style, Font& font) {
  font.request = {style.fontName, style.thin};
  font.face = m_fonts.faceFor(font.request);
  font.height = style.characterHeight == 0 ? defaultCharacterHeight
                                           : std::clamp(style.characterHeight, 1, maxCharacterHeight);
  font.antialiased = style.antialiased;
  font.spacing = style.characterSpacing;
  if (!findMetrics(font)) {
    reportMissingFont(style.fontName);
    return false;
  }
  return true;
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
  const int other = m_fonts.faceWithCharacter(font.request, character);
  const FontFace* fallback = m_fonts.open(other);
  if (const unsigned index = fallback == nullptr ? 0 : fallback->glyphIndexOf(character)) {
    return glyphOf(font, other, index);
  }
  return glyphOf(font, font.face, 0);
}

int TextEngine::lineWidth(const Font& font, const std::u32string& line) {
  int width = 0;
  for (const char32_t character : line) {
    width += glyphOf(font, character).advance + font.spacing;
  }
  return width;
}

TextSize TextEngine::measure(const std::string& text, const TextStyle& style) {
  Font font;
  TextSize size;
  if (!select(style, font)) {
    return size;
  }
  for (const std::u32string& line : linesOf(text)) {
    size.width = std::max(size.width, lineWidth(font, line));
    size.height += font.metrics.lineHeight();
  }
  return size;
}

void TextEngine::draw(Surface& surface, int x, int y, const std::string& text, const TextStyle& style,
                      xplColor color, int alignment) {
  Font font;
  if (!select(style, font)) {
    return;
  }
  int baseline = y + font.metrics.ascent;
  for (const std::u32string& line : linesOf(text)) {
    int pen = leftEdge(x, lineWidth(font, line), alignment);
    for (const char32_t character : line) {
      const Glyph& glyph = glyphOf(font, character);
      paintGlyph(surface, pen, baseline, glyph, color);
      pen += glyph.advance + font.spacing;
    }
    baseline += font.metrics.lineHeight();
  }
}
