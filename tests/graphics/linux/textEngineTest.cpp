// Tests of text on Linux: characters beyond ASCII, missing characters and fonts.
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "textEngineFixture.h"

namespace {

constexpr const char* star = "\xe2\x98\x85";
constexpr const char* characterOfNoFace = "\xf4\x8f\xbf\xbe";

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
