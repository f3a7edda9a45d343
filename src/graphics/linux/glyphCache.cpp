// Implements the cache of glyphs.
#include "graphics/linux/glyphCache.h"

#include <cstdint>

std::size_t GlyphCache::Hash::operator()(const GlyphKey& key) const {
  constexpr std::uint64_t spread = 0x9E3779B97F4A7C15U;  // 2^64 divided by the golden ratio
  std::uint64_t value = key.glyphIndex;
  value = value * spread + static_cast<std::uint64_t>(key.height);
  value = value * spread + static_cast<std::uint64_t>(key.face);
  value = value * spread + (key.antialiased ? 1U : 0U);
  return static_cast<std::size_t>(value ^ (value >> 32U));
}

std::size_t GlyphCache::sizeOf(const Glyph& glyph) {
  constexpr std::size_t bookkeeping = 64;  // list and map nodes beside the entry
  return sizeof(Entry) + bookkeeping + glyph.bits.capacity();
}

const Glyph* GlyphCache::find(const GlyphKey& key) {
  const auto place = m_places.find(key);
  if (place == m_places.end()) {
    return nullptr;
  }
  m_entries.splice(m_entries.begin(), m_entries, place->second);
  return &m_entries.front().second;
}

const Glyph& GlyphCache::add(const GlyphKey& key, Glyph glyph) {
  m_entries.emplace_front(key, std::move(glyph));
  m_places.emplace(key, m_entries.begin());
  m_bytes += sizeOf(m_entries.front().second);
  while (m_bytes > m_maxBytes && m_entries.size() > 1) {
    m_bytes -= sizeOf(m_entries.back().second);
    m_places.erase(m_entries.back().first);
    m_entries.pop_back();
  }
  return m_entries.front().second;
}
