// Implements faces and their glyphs.
#include "graphics/linux/fontFace.h"

#include <cstdlib>
#include <utility>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

namespace {

// FreeType's 26.6 fixed point to whole pixels, rounded half up.
int roundedPixels(FT_Pos value) {
  return static_cast<int>((value + 32) >> 6);
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
  const FT_Face face = m_handle->face;
  const FT_Fixed scale = face->size->metrics.y_scale;
  const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  if (os2 != nullptr && os2->usWinAscent + os2->usWinDescent != 0) {
    return {roundedPixels(FT_MulFix(os2->usWinAscent, scale)),
            roundedPixels(FT_MulFix(os2->usWinDescent, scale))};
  }
  return {roundedPixels(FT_MulFix(face->ascender, scale)), roundedPixels(FT_MulFix(-face->descender, scale))};
}

unsigned FontFace::glyphIndexOf(char32_t character) const {
  return FT_Get_Char_Index(m_handle->face, character);
}

Glyph FontFace::render(unsigned glyphIndex, bool antialiased) const {
  const FT_Int32 target = antialiased ? FT_LOAD_TARGET_NORMAL : FT_LOAD_TARGET_MONO;
  Glyph glyph;
  glyph.antialiased = antialiased;
  if (FT_Load_Glyph(m_handle->face, glyphIndex, FT_LOAD_RENDER | FT_LOAD_NO_BITMAP | target) != 0) {
    return glyph;
  }
  const FT_GlyphSlot slot = m_handle->face->glyph;
  const FT_Bitmap& bitmap = slot->bitmap;
  glyph.advance = roundedPixels(slot->metrics.horiAdvance);
  glyph.left = slot->bitmap_left;
  glyph.top = slot->bitmap_top;
  glyph.width = static_cast<int>(bitmap.width);
  glyph.height = static_cast<int>(bitmap.rows);
  glyph.pitch = static_cast<std::size_t>(std::abs(bitmap.pitch));
  if (bitmap.buffer != nullptr) {
    glyph.bits.assign(bitmap.buffer, bitmap.buffer + glyph.pitch * bitmap.rows);
  }
  return glyph;
}
