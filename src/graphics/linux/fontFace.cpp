// Implements faces and their glyphs.
#include "graphics/linux/fontFace.h"

#include <algorithm>
#include <utility>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

namespace {

// FreeType's 26.6 fixed point to whole pixels, rounded half up.
int roundedPixels(FT_Pos value) {
  return static_cast<int>((value + 32) >> 6);
}

// The extent of a line above and below its baseline, in the font's units.
struct UnitsAboveAndBelow {
  FT_Long above;
  FT_Long below;
};

// What the font says for Windows, else what it says for everyone.
UnitsAboveAndBelow unitsOf(FT_Face face) {
  const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  if (os2 != nullptr && os2->usWinAscent + os2->usWinDescent != 0) {
    return {os2->usWinAscent, os2->usWinDescent};
  }
  return {face->ascender, -FT_Long{face->descender}};
}

bool loadOutline(FT_Face face, unsigned glyphIndex, bool antialiased) {
  const FT_Int32 target = antialiased ? FT_LOAD_TARGET_NORMAL : FT_LOAD_TARGET_MONO;
  return FT_Load_Glyph(face, glyphIndex, FT_LOAD_NO_BITMAP | target) == 0 &&
         face->glyph->format == FT_GLYPH_FORMAT_OUTLINE;
}

// From 256 steps to as many as GDI has.
std::uint8_t levelOfCoverage(std::uint8_t coverage) {
  return static_cast<std::uint8_t>(coverage * (Glyph::solid + 1) / 256);
}

// The whole pixels that the hinted outline touches. FreeType's own choice is narrower for unantialiased
// glyphs, and leaves out pixels at the edges of very small characters that GDI sets.
void renderOutline(FT_GlyphSlotRec& slot, Glyph& glyph) {
  const FT_Glyph_Metrics& box = slot.metrics;
  const FT_Pos left = box.horiBearingX & -64;
  const FT_Pos right = (box.horiBearingX + box.width + 63) & -64;
  const FT_Pos top = (box.horiBearingY + 63) & -64;
  const FT_Pos bottom = (box.horiBearingY - box.height) & -64;
  FT_Bitmap bitmap{};
  bitmap.width = static_cast<unsigned>((right - left) >> 6);
  bitmap.rows = static_cast<unsigned>((top - bottom) >> 6);
  bitmap.pitch = static_cast<int>(glyph.antialiased ? bitmap.width : (bitmap.width + 7) / 8);
  bitmap.pixel_mode = glyph.antialiased ? FT_PIXEL_MODE_GRAY : FT_PIXEL_MODE_MONO;
  bitmap.num_grays = 256;
  glyph.left = static_cast<int>(left >> 6);
  glyph.top = static_cast<int>(top >> 6);
  glyph.width = static_cast<int>(bitmap.width);
  glyph.height = static_cast<int>(bitmap.rows);
  glyph.pitch = static_cast<std::size_t>(bitmap.pitch);
  glyph.bits.resize(glyph.pitch * bitmap.rows);
  bitmap.buffer = glyph.bits.data();
  FT_Outline_Translate(&slot.outline, -left, -bottom);
  if (FT_Outline_Get_Bitmap(slot.library, &slot.outline, &bitmap) != 0) {
    glyph.width = 0;
  }
  if (glyph.antialiased) {
    std::transform(glyph.bits.begin(), glyph.bits.end(), glyph.bits.begin(), levelOfCoverage);
  }
}

}  // namespace

struct FontLibrary::Handle {
  Handle() {
    if (FT_Init_FreeType(&library) != 0) {
      library = nullptr;
    }
  }
  ~Handle() { FT_Done_FreeType(library); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  FT_Library library = nullptr;
};

FontLibrary::FontLibrary() : m_handle(std::make_unique<Handle>()) {}

FontLibrary::~FontLibrary() = default;

struct FontFace::Handle {
  explicit Handle(FT_Face aFace) : face(aFace) {}
  ~Handle() { FT_Done_Face(face); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  FT_Face face;
};

FontFace::FontFace(std::unique_ptr<Handle> handle) : m_handle(std::move(handle)) {}

FontFace::~FontFace() = default;

FontFace::FontFace(FontFace&&) noexcept = default;

FontFace& FontFace::operator=(FontFace&&) noexcept = default;

std::optional<FontFace> FontFace::open(const FontLibrary& library, const FontFile& file) {
  FT_Face opened = nullptr;
  if (library.m_handle->library == nullptr ||
      FT_New_Face(library.m_handle->library, file.path.c_str(), file.index, &opened) != 0) {
    return std::nullopt;
  }
  auto handle = std::make_unique<Handle>(opened);
  if (!FT_IS_SCALABLE(opened)) {
    return std::nullopt;
  }
  return FontFace(std::move(handle));
}

bool FontFace::setHeight(int pixels) {
  if (pixels != m_height) {
    const bool done = FT_Set_Pixel_Sizes(m_handle->face, 0, static_cast<FT_UInt>(pixels)) == 0;
    m_height = done ? pixels : 0;
  }
  return m_height != 0;
}

FontMetrics FontFace::metrics() const {
  const UnitsAboveAndBelow units = unitsOf(m_handle->face);
  const FT_Long perEm = m_handle->face->units_per_EM;
  const auto pixels = [this, perEm](FT_Long length) {
    return static_cast<int>((2 * length * m_height + perEm) / (2 * perEm));
  };
  return {pixels(units.above), pixels(units.below)};
}

int FontFace::heightForLineHeight(int pixels) const {
  const UnitsAboveAndBelow units = unitsOf(m_handle->face);
  const FT_Long lineUnits = std::max<FT_Long>(units.above + units.below, 1);
  return static_cast<int>((2 * FT_Long{m_handle->face->units_per_EM} * pixels + lineUnits) / (2 * lineUnits));
}

unsigned FontFace::glyphIndexOf(char32_t character) const {
  return FT_Get_Char_Index(m_handle->face, character);
}

Glyph FontFace::render(unsigned glyphIndex, bool antialiased) const {
  Glyph glyph;
  glyph.antialiased = antialiased;
  const FT_Face face = m_handle->face;
  // GDI measures with the antialiased glyph's advance in either case.
  if (!loadOutline(face, glyphIndex, true)) {
    return glyph;
  }
  glyph.measuredAdvance = roundedPixels(face->glyph->metrics.horiAdvance);
  if (!antialiased && !loadOutline(face, glyphIndex, false)) {
    return glyph;
  }
  glyph.advance = roundedPixels(face->glyph->metrics.horiAdvance);
  renderOutline(*face->glyph, glyph);
  return glyph;
}
