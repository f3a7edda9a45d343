// Tests the bounds of text on Linux: extreme places, spacings and heights, and what the caches keep.
#include <limits>
#include <string>
#include <vector>

#include "textEngineFixture.h"

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();
constexpr const char* star = "\xe2\x98\x85";

TEST(CharacterHeight, IsPointsTimesDotsPerInchBySeventyTwoRounded) {
  EXPECT_EQ(characterHeightOf(10, 96), 13);
  EXPECT_EQ(characterHeightOf(12, 96), 16);
  EXPECT_EQ(characterHeightOf(10, 144), 20);
  EXPECT_EQ(characterHeightOf(3, 108), 5);  // 4.5
  EXPECT_EQ(characterHeightOf(-3, 108), -5);
  EXPECT_EQ(characterHeightOf(0, 96), 0);
  EXPECT_EQ(characterHeightOf(1, 1), 0);
  EXPECT_EQ(characterHeightOf(largest, 96), largest);
  EXPECT_EQ(characterHeightOf(smallest, 96), smallest);
}

TEST_F(TextEngineTest, ExtremePlacesAndSpacingsDrawNothing) {
  Surface surface(20, 20);
  surface.fillRect({0, 0, 20, 20}, {});
  for (const int place : {smallest, largest}) {
    for (const int alignment : {-1, 0, 1}) {
      TextStyle style = styleOf("Arial", 16);
      engine.draw(surface, place, 0, "abc\nd", style, white, alignment);
      engine.draw(surface, 0, place, "abc\nd", style, white, alignment);
      style.characterSpacing = place;
      engine.draw(surface, 100, 100, "abc\nd", style, white, alignment);
    }
  }
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      ASSERT_EQ(surface.getPixel(x, y), xplColor(0, 0, 0)) << x << ' ' << y;
    }
  }
}

TEST_F(TextEngineTest, ExtremeSpacingsGiveSizesThatFit) {
  TextStyle style = styleOf("Arial", 16);
  style.characterSpacing = largest;
  EXPECT_EQ(engine.measure("abc", style).width, largest);
  style.characterSpacing = smallest;
  EXPECT_EQ(engine.measure("abc", style).width, 0);
}

TEST_F(TextEngineTest, AHugeHeightIsBounded) {
  const TextSize size = engine.measure("a", styleOf("Arial", largest));
  EXPECT_GT(size.height, 4096);
  EXPECT_LT(size.height, 8192);
}

TEST_F(TextEngineTest, GlyphsAreKeptWithinABound) {
  Surface surface(8, 8);
  surface.fillRect({0, 0, 8, 8}, {});
  for (int height = 8; height < 120; ++height) {
    engine.draw(surface, 0, 0, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz",
                styleOf("Arial", height, true), white, left);
    ASSERT_LE(engine.glyphs().bytes(), 2U * 1024U * 1024U);
  }
  EXPECT_GT(engine.glyphs().count(), 50U);
}

TEST_F(TextEngineTest, ATextDrawnAgainUsesTheSameGlyphs) {
  const TextStyle style = styleOf("Arial", 16);
  drawn(engine, "abcabc", style);
  EXPECT_EQ(engine.glyphs().count(), 3U);
  drawn(engine, "cba", style);
  EXPECT_EQ(engine.glyphs().count(), 3U);
}

TEST_F(TextEngineTest, ManyFacesAndHeightsLeaveTheFirstAsItWas) {
  const auto first = drawn(engine, "abc", styleOf("Arial", 17));
  const char* const faces[] = {
      "Liberation Sans",  "Liberation Mono", "Liberation Serif", "DejaVu Sans", "DejaVu Serif",
      "DejaVu Sans Mono", "serif",           "monospace",        "Courier New", "sans-serif"};
  for (int round = 0; round < 80; ++round) {
    for (const char* face : faces) {
      EXPECT_GT(engine.measure("abc", styleOf(face, 10 + round)).width, 0);
    }
    engine.measure("abc", styleOf("Face " + std::to_string(round), 12));
  }
  EXPECT_EQ(drawn(engine, "abc", styleOf("Arial", 17)), first);
}

}  // namespace
