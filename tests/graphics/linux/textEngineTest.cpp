// Tests of text on Linux: characters beyond ASCII, missing characters and fonts, and the bounds of the
// caches.
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/linux/textEngine.h"
#include "harness/privateFolders.h"

namespace {

constexpr xplColor white(255, 255, 255);
constexpr int left = xplTextDrawingInfo::alignLeft;
constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();
constexpr const char* star = "\xe2\x98\x85";
constexpr const char* characterOfNoFace = "\xf4\x8f\xbf\xbe";

TextStyle styleOf(const std::string& face, int height, bool antialiased = false) {
  TextStyle style;
  style.fontName = face;
  style.characterHeight = height;
  style.antialiased = antialiased;
  return style;
}

// All pixels of a black picture with the text on it.
std::vector<std::uint32_t> drawn(TextEngine& engine, const std::string& text, const TextStyle& style) {
  Surface surface(120, 40);
  surface.fillRect({0, 0, 120, 40}, {});
  engine.draw(surface, 4, 4, text, style, white, left);
  return {surface.pixels(), surface.pixels() + surface.stride() * 40};
}

bool isBlank(const std::vector<std::uint32_t>& pixels) {
  for (const std::uint32_t pixel : pixels) {
    if (pixel != 0xff000000U) {
      return false;
    }
  }
  return true;
}

class TextEngineTest : public PrivateFolders {
 protected:
  TextEngine engine;
};

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

TEST_F(TextEngineTest, ACharacterOfSeveralBytesIsOneCharacter) {
  const TextStyle style = styleOf("Courier New", 16);
  EXPECT_EQ(engine.measure("\xc3\xa9", style).width, 10);
  EXPECT_NE(drawn(engine, "\xc3\xa9", style), drawn(engine, "e", style));
}

TEST_F(TextEngineTest, AMalformedByteIsDrawnAsTheReplacementCharacterAndEndsNothing) {
  const TextStyle style = styleOf("Courier New", 16);
  EXPECT_EQ(drawn(engine, "x\xffy", style), drawn(engine, "x\xef\xbf\xbdy", style));
  EXPECT_NE(drawn(engine, "x\xffy", style), drawn(engine, "x\xff", style));
  EXPECT_EQ(engine.measure("\xff\n\xff", style).height, 36);
}

TEST_F(TextEngineTest, ACharacterThatTheFaceLacksComesFromAnotherFace) {
  const TextStyle style = styleOf("Liberation Mono", 24);
  EXPECT_FALSE(isBlank(drawn(engine, star, style)));
  EXPECT_NE(drawn(engine, star, style), drawn(engine, characterOfNoFace, style));
  EXPECT_EQ(engine.measure(star, style).height, engine.measure("a", style).height);
}

TEST_F(TextEngineTest, ACharacterThatNoFaceHasIsDrawnAsAMissingOne) {
  const TextStyle style = styleOf("Liberation Mono", 16);
  EXPECT_EQ(drawn(engine, characterOfNoFace, style), drawn(engine, "\x01", style));
  EXPECT_FALSE(isBlank(drawn(engine, "\x01", style)));
}

// A user's own text may be in a script of thousands of characters, and is measured within a frame.
TEST_F(TextEngineTest, ThousandsOfCharactersThatTheFaceLacksAreFoundQuickly) {
  std::string text;
  for (int i = 0; i < 5000; ++i) {  // from U+12000 on
    const int character = 0x12000 + i;
    text += "\xf0\x92";
    text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  }
  const TextStyle style = styleOf("Arial", 16);
  engine.measure("a", style);
  const std::clock_t start = std::clock();
  EXPECT_GT(engine.measure(text, style).width, 5000);
  EXPECT_LT(1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 150.0);
}

TEST_F(TextEngineTest, AnUnknownFaceIsReplacedByAnother) {
  EXPECT_FALSE(isBlank(drawn(engine, "abc", styleOf("No Such Face Anywhere", 16))));
  EXPECT_EQ(logText().find("ERROR"), std::string::npos);
}

TEST_F(TextEngineTest, TheGenericSerifFaceDiffersFromArial) {
  EXPECT_NE(drawn(engine, "abc", styleOf("serif", 16)), drawn(engine, "abc", styleOf("Arial", 16)));
}

TEST_F(TextEngineTest, SmallAntialiasedTextIsSmooth) {
  int between = 0;
  for (const std::uint32_t pixel : drawn(engine, "Sky", styleOf("Arial", 16, true))) {
    between += pixel != 0xff000000U && pixel != 0xffffffffU ? 1 : 0;
  }
  EXPECT_GT(between, 20);
}

TEST_F(TextEngineTest, EveryPixelStaysOpaque) {
  for (const std::uint32_t pixel : drawn(engine, "Sky", styleOf("Arial", 30, true))) {
    ASSERT_EQ(pixel >> 24, 255U);
  }
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

// A font configuration that knows of no fonts.
class TextWithoutFonts : public PrivateFolders {
 protected:
  TextWithoutFonts() {
    const std::string file = root() + "/fonts.conf";
    writeFile(file, "<?xml version=\"1.0\"?><fontconfig><dir>" + root() + "/none</dir><cachedir>" + root() +
                        "/cache</cachedir></fontconfig>");
    setenv("FONTCONFIG_FILE", file.c_str(), 1);
  }
  ~TextWithoutFonts() override { unsetenv("FONTCONFIG_FILE"); }
};

TEST_F(TextWithoutFonts, NothingIsDrawnAndOneEntrySaysSo) {
  TextEngine engine;
  EXPECT_TRUE(isBlank(drawn(engine, "abc", styleOf("Arial", 16))));
  EXPECT_TRUE(isBlank(drawn(engine, "abc", styleOf("serif", 20))));
  EXPECT_EQ(engine.measure("abc", styleOf("Arial", 0)).width, 0);
  EXPECT_EQ(engine.measure("abc", styleOf("Arial", 16)).height, 0);
  EXPECT_EQ(countEntries("No usable font for \"Arial\" on this system: texts are not drawn", "ERROR"), 1);
  EXPECT_EQ(countEntries("No usable font for \"serif\" on this system: texts are not drawn"), 0);
}

}  // namespace
