// Keeps rendered glyphs, the most recently used ones, within a bound on their memory.
#pragma once

#include <cstddef>
#include <list>
#include <unordered_map>
#include <utility>

#include "graphics/linux/fontFace.h"

struct GlyphKey {
  int face = 0;  // as FontCache counts faces
  int height = 0;
  unsigned glyphIndex = 0;
  bool antialiased = false;

  friend bool operator==(const GlyphKey&, const GlyphKey&) = default;
};

class GlyphCache {
 public:
  // maxBytes bounds the glyphs together; the newest one is kept whatever its size.
  explicit GlyphCache(std::size_t maxBytes) : m_maxBytes(maxBytes) {}

  // Null where it is not kept. The glyph stays until the next add.
  const Glyph* find(const GlyphKey& key);
  // The key must not be kept already. The glyph stays until the next add.
  const Glyph& add(const GlyphKey& key, Glyph glyph);

  std::size_t count() const { return m_entries.size(); }
  std::size_t bytes() const { return m_bytes; }

 private:
  struct Hash {
    std::size_t operator()(const GlyphKey& key) const;
  };
  using Entry = std::pair<GlyphKey, Glyph>;

  static std::size_t sizeOf(const Glyph& glyph);

  std::size_t m_maxBytes;
  std::size_t m_bytes = 0;
  std::list<Entry> m_entries;  // the last used one first
  std::unordered_map<GlyphKey, std::list<Entry>::iterator, Hash> m_places;
};
