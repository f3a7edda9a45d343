// Tests that the glyph cache keeps what was used last, within its bound.
#include <cstddef>
#include <initializer_list>

#include <gtest/gtest.h>

#include "graphics/linux/glyphCache.h"

namespace {

Glyph glyphOfBytes(std::size_t count, int advance) {
  Glyph glyph;
  glyph.advance = advance;
  glyph.bits.resize(count);
  return glyph;
}

GlyphKey keyOf(unsigned index) {
  return {0, 16, index, true};
}

TEST(GlyphCacheTest, GivesBackWhatWasAdded) {
  GlyphCache cache(100000);
  EXPECT_EQ(cache.find(keyOf(1)), nullptr);
  EXPECT_EQ(cache.add(keyOf(1), glyphOfBytes(10, 7)).advance, 7);
  ASSERT_NE(cache.find(keyOf(1)), nullptr);
  EXPECT_EQ(cache.find(keyOf(1))->advance, 7);
}

TEST(GlyphCacheTest, TellsKeysApart) {
  GlyphCache cache(100000);
  cache.add({1, 16, 5, true}, glyphOfBytes(1, 1));
  for (const GlyphKey& other : std::initializer_list<GlyphKey>{
           {2, 16, 5, true}, {1, 17, 5, true}, {1, 16, 6, true}, {1, 16, 5, false}}) {
    EXPECT_EQ(cache.find(other), nullptr);
  }
}

TEST(GlyphCacheTest, StaysWithinItsBound) {
  constexpr std::size_t bound = 20000;
  GlyphCache cache(bound);
  for (unsigned index = 0; index < 1000; ++index) {
    cache.add(keyOf(index), glyphOfBytes(500, 1));
    EXPECT_LE(cache.bytes(), bound);
  }
  EXPECT_GT(cache.count(), 10U);
  EXPECT_LT(cache.count(), 40U);
}

TEST(GlyphCacheTest, DropsWhatWasUsedLongestAgo) {
  GlyphCache cache(4000);
  cache.add(keyOf(1), glyphOfBytes(1000, 1));
  cache.add(keyOf(2), glyphOfBytes(1000, 2));
  cache.add(keyOf(3), glyphOfBytes(1000, 3));
  ASSERT_NE(cache.find(keyOf(1)), nullptr);
  cache.add(keyOf(4), glyphOfBytes(1000, 4));
  EXPECT_NE(cache.find(keyOf(1)), nullptr);
  EXPECT_EQ(cache.find(keyOf(2)), nullptr);
  EXPECT_NE(cache.find(keyOf(4)), nullptr);
}

TEST(GlyphCacheTest, KeepsTheNewestWhateverItsSize) {
  GlyphCache cache(1000);
  cache.add(keyOf(1), glyphOfBytes(100, 1));
  EXPECT_EQ(cache.add(keyOf(2), glyphOfBytes(50000, 2)).advance, 2);
  EXPECT_EQ(cache.count(), 1U);
  cache.add(keyOf(3), glyphOfBytes(100, 3));
  EXPECT_EQ(cache.find(keyOf(2)), nullptr);
  EXPECT_LE(cache.bytes(), 1000U);
}

}  // namespace
