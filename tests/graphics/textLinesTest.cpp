// Tests where the lines of a text stand, and its characters in them: line ends, alignment, spacing.
#include <string>

#include <gtest/gtest.h>

#include "graphics/textPicture.h"

namespace {

TEST(TextTest, LinesEndAtLineFeedsAndCarriageReturns) {
  TextPicture canvas(1, 1);
  const xplTextDrawingInfo info = plain("Courier New", 12);
  for (const char* text : {"a\nbc", "a\r\nbc", "a\rbc", "a\n\rbc"}) {
    EXPECT_EQ(canvas.sizeOf(text, info), (std::pair{20, 36})) << testing::PrintToString(text);
  }
  for (const char* text : {"a\n\nbc", "a\r\n\r\nbc", "a\r\rbc", "a\r\r\nbc"}) {
    EXPECT_EQ(canvas.sizeOf(text, info), (std::pair{20, 54})) << testing::PrintToString(text);
  }
}

TEST(TextTest, ALineEndAtTheEndBeginsNoLine) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("a\n", plain("Courier New", 12)), (std::pair{10, 18}));
  EXPECT_EQ(canvas.sizeOf("\n", plain("Courier New", 12)), (std::pair{0, 18}));
}

TEST(TextTest, LinesAreAlignedOneByOne) {
  const xplTextDrawingInfo info = plain("Courier New", 12, right);
  TextPicture both(100, 50);
  both.drawText(90, 4, "abc\nx", info);
  TextPicture single(100, 50);
  single.drawText(90, 4, "abc", info);
  single.drawText(90, 22, "x", info);
  EXPECT_EQ(both.rows(), single.rows());
}

TEST(TextTest, CenteredTextOfOddWidthIsShiftedByHalfAPixelToTheRight) {
  TextPicture centeredCanvas(60, 30);
  centeredCanvas.drawText(30, 4, "i", plain("Courier New", 10, centered));  // 8 pixels wide
  TextPicture leftCanvas(60, 30);
  leftCanvas.drawText(26, 4, "i", plain("Courier New", 10));
  EXPECT_EQ(centeredCanvas.rows(), leftCanvas.rows());

  TextPicture oddCentered(60, 30);
  oddCentered.drawText(30, 4, "i", plain("Courier New", 8, centered));  // 7 pixels wide
  TextPicture oddLeft(60, 30);
  oddLeft.drawText(26, 4, "i", plain("Courier New", 8));
  EXPECT_EQ(oddCentered.rows(), oddLeft.rows());
}

TEST(TextTest, AnUnknownAlignmentIsLeft) {
  EXPECT_EQ(hashOf(100, "abc", plain("Arial", 12, 7)), hashOf(100, "abc", plain("Arial", 12, left)));
}

TEST(TextTest, SpacingIsTruncatedAndFollowsEachCharacter) {
  TextPicture canvas(1, 1);
  xplTextDrawingInfo info = plain("Courier New", 12);
  info.characterSpacing = 2.9F;
  EXPECT_EQ(canvas.sizeOf("abc\nd", info), (std::pair{36, 36}));
  info.characterSpacing = -2.9F;
  EXPECT_EQ(canvas.sizeOf("abc\nd", info), (std::pair{24, 36}));
}

TEST(TextTest, SpacedCharactersStandApart) {
  xplTextDrawingInfo info = plain("Courier New", 12);
  TextPicture apart(60, 20);
  apart.drawText(1, 1, "a", info);
  apart.drawText(16, 1, "b", info);
  info.characterSpacing = 5.0F;
  TextPicture spaced(60, 20);
  spaced.drawText(1, 1, "ab", info);
  EXPECT_EQ(spaced.rows(), apart.rows());
}

TEST(TextTest, SpacingEndsWithItsText) {
  xplTextDrawingInfo info = plain("Courier New", 12);
  TextPicture canvas(1, 1);
  info.characterSpacing = 5.0F;
  EXPECT_EQ(canvas.sizeOf("ab", info).first, 30);
  info.characterSpacing.reset();
  EXPECT_EQ(canvas.sizeOf("ab", info).first, 20);
}

}  // namespace
