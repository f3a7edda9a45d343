// Tests how letters look and which sizes texts have: faces, antialiasing, odd sizes and characters, the
// edges.
#include <string>

#include <gtest/gtest.h>

#include "graphics/textPicture.h"

namespace {

TEST(TextTest, LettersStandOnTheBaselineOfTheirFace) {
  TextPicture canvas(16, 14);
  canvas.drawText(1, 1, "Ag", plain("Courier New", 8));
  EXPECT_EQ(canvas.rows(), (std::vector<std::string>{
                               "................", "................", "................", "....#...........",
                               "...#.#....####..", "...#.#...#...#..", "..#...#..#...#..", "..#####..#...#..",
                               "..#...#..#...#..", ".#.....#..####..", ".............#..", ".........####...",
                               "................", "................"}));
}

TEST(TextTest, ProportionalLettersHaveWidthsOfTheirOwn) {
  TextPicture canvas(16, 14);
  canvas.drawText(1, 1, "Wi", plain("Arial", 8));
  EXPECT_EQ(canvas.rows(), (std::vector<std::string>{
                               "................", "................", "................", ".#...#...#.#....",
                               ".#...#...#......", "..#.#.#.#..#....", "..#.#.#.#..#....", "..#.#.#.#..#....",
                               "..#.#.#.#..#....", "...#...#...#....", "...#...#...#....", "................",
                               "................", "................"}));
}

TEST(TextTest, OnlyTheColorsOfTextAndBackgroundAppearWithoutAntialiasing) {
  TextPicture canvas(200, 40);
  canvas.drawText(4, 4, sampleText, plain("Arial", 12));
  EXPECT_GT(canvas.countOf(white), 100);
  EXPECT_EQ(canvas.countOf(white) + canvas.countOf(black), 200 * 40);
}

TEST(TextTest, AntialiasedTextHasColorsBetweenTextAndBackground) {
  xplTextDrawingInfo info = plain("Arial", 18);
  info.nonAntialiased = 0;
  TextPicture canvas(300, 80);
  canvas.drawText(4, 4, sampleText, info);
  EXPECT_GT(canvas.countOf(white), 100);
  EXPECT_LT(canvas.countOf(white) + canvas.countOf(black), 300 * 80);
}

TEST(TextTest, AFlagOtherThanOneLeavesAntialiasingOn) {
  xplTextDrawingInfo info = plain("Arial", 18);
  info.nonAntialiased = 2;
  xplTextDrawingInfo smooth = info;
  smooth.nonAntialiased = 0;
  EXPECT_EQ(hashOf(4, sampleText, info), hashOf(4, sampleText, smooth));
  EXPECT_NE(hashOf(4, sampleText, info), hashOf(4, sampleText, plain("Arial", 18)));
}

TEST(TextTest, AntialiasingDoesNotChangeTheSize) {
  TextPicture canvas(1, 1);
  for (const int points : {8, 10, 12, 16, 18, 48}) {
    xplTextDrawingInfo smooth = plain("Arial", points);
    smooth.nonAntialiased = 0;
    EXPECT_EQ(canvas.sizeOf(sampleText, smooth), canvas.sizeOf(sampleText, plain("Arial", points))) << points;
  }
}

TEST(TextTest, EmptyTextHasNoSizeAndDrawsNothing) {
  TextPicture canvas(50, 30);
  EXPECT_EQ(canvas.sizeOf("", plain("Arial", 12)), (std::pair{0, 0}));
  canvas.drawText(5, 5, "", plain("Arial", 12));
  EXPECT_EQ(canvas.countOf(black), 50 * 30);
}

TEST(TextTest, EitherSizeMayBeLeftOut) {
  class Measured : public TextPicture {
   public:
    using TextPicture::TextPicture;
    using TextPicture::tools;
  } canvas(1, 1);
  int width = -1;
  int height = -1;
  canvas.tools().getTextSize("ab", plain("Courier New", 12), &width, nullptr);
  canvas.tools().getTextSize("ab", plain("Courier New", 12), nullptr, &height);
  EXPECT_EQ(width, 20);
  EXPECT_EQ(height, 18);
}

TEST(TextTest, AnAbsentSizeIsTenPointsAndAnAbsentFaceArial) {
  xplTextDrawingInfo info = plain("Arial", 10);
  const std::uint64_t expected = hashOf(4, sampleText, info);
  info.fontName.reset();
  info.fontSize.reset();
  EXPECT_EQ(hashOf(4, sampleText, info), expected);
}

TEST(TextTest, ASizeOfZeroGivesLinesOfSixteenPixels) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("Hxgy, Qj 09", plain("Courier New", 0)), (std::pair{88, 16}));
  EXPECT_EQ(canvas.sizeOf("Hxgy, Qj 09", plain("Arial", 0)), (std::pair{74, 16}));
}

TEST(TextTest, ANegativeSizeGivesLinesOfThatHeight) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("Hxgy, Qj 09", plain("Courier New", -30)), (std::pair{231, 40}));
}

TEST(TextTest, AnAmpersandIsDrawnAsItStands) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("a&b&&", plain("Courier New", 12)), (std::pair{50, 18}));
}

TEST(TextTest, ATabIsACharacterLikeOthers) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("a\tb", plain("Courier New", 12)), (std::pair{30, 18}));
}

TEST(TextTest, TextEndsAtAZeroByte) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf(std::string("ab\0cd", 5), plain("Courier New", 12)), (std::pair{20, 18}));
}

TEST(TextTest, AThinFaceThatTheFamilyLacksIsTheRegularOne) {
  xplTextDrawingInfo info = plain("Courier New", 12);
  const std::uint64_t regular = hashOf(4, sampleText, info);
  info.thin = 1;
  EXPECT_EQ(hashOf(4, sampleText, info), regular);
}

TEST(TextTest, TextAcrossTheEdgesIsClipped) {
  const xplTextDrawingInfo info = plain("Arial", 48);
  TextPicture whole(200, 200);
  whole.drawText(60, 60, "Qy", info);
  TextPicture part(40, 40);
  part.drawText(-20, -10, "Qy", info);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) {
      ASSERT_EQ(part.getPixel(x, y), whole.getPixel(x + 80, y + 70)) << x << ' ' << y;
    }
  }
  EXPECT_GT(part.countOf(white), 0);
}

TEST(TextTest, TextFarOutsideDrawsNothing) {
  TextPicture canvas(20, 20);
  for (const int alignment : {left, centered, right}) {
    canvas.drawText(30000, 5, "abc", plain("Arial", 12, alignment));
    canvas.drawText(-30000, 5, "abc", plain("Arial", 12, alignment));
    canvas.drawText(5, 30000, "abc", plain("Arial", 12, alignment));
    canvas.drawText(5, -30000, "abc", plain("Arial", 12, alignment));
  }
  EXPECT_EQ(canvas.countOf(black), 20 * 20);
}

}  // namespace
