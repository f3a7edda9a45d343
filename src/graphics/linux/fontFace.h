// One face of a font file at one character height at a time, rendered by FreeType.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "graphics/linux/fontCatalogue.h"

// The picture of one character.
struct Glyph {
  // The level of coverage of a pixel that lies wholly inside the outline.
  static constexpr std::uint8_t solid = 16;

  int advance = 0;          // pixels to the next character
  int measuredAdvance = 0;  // pixels that count when a line is measured
  int left = 0;             // pixels from the pen to the picture's left edge
  int top = 0;              // pixels from the baseline up to the picture's top edge
  int width = 0;
  int height = 0;
  bool antialiased = false;
  std::size_t pitch = 0;  // bytes to a row
  // Antialiased: a level of coverage (0 to solid) a byte; else a pixel a bit, the leftmost in the highest.
  std::vector<std::uint8_t> bits;
};

// Vertical measures of a face, in pixels.
struct FontMetrics {
  int ascent = 0;   // from a line's top to its baseline
  int descent = 0;  // from the baseline to the line's bottom

  int lineHeight() const { return ascent + descent; }
};

// FreeType itself; it must outlive every face made with it.
class FontLibrary {
 public:
  FontLibrary();
  ~FontLibrary();
  FontLibrary(const FontLibrary&) = delete;
  FontLibrary& operator=(const FontLibrary&) = delete;

 private:
  friend class FontFace;
  struct Handle;
  std::unique_ptr<Handle> m_handle;
};

class FontFace {
 public:
  // Nothing where the file cannot be read as a font with outlines.
  static std::optional<FontFace> open(const FontLibrary& library, const FontFile& file);
  ~FontFace();
  FontFace(FontFace&&) noexcept;
  FontFace& operator=(FontFace&&) noexcept;

  // The em height in pixels, in [1, 4096], of all that follows; false where the face cannot be had at it.
  bool setHeight(int pixels);
  FontMetrics metrics() const;
  // The em height at which a line is nearest to this many pixels (0 or more) high.
  int heightForLineHeight(int pixels) const;
  // 0 where the face lacks the character.
  unsigned glyphIndexOf(char32_t character) const;
  // Index 0 is the picture of a missing character. A glyph that cannot be rendered comes out empty.
  Glyph render(unsigned glyphIndex, bool antialiased) const;

 private:
  struct Handle;
  explicit FontFace(std::unique_ptr<Handle> handle);
  std::unique_ptr<Handle> m_handle;
  int m_height = 0;
};
