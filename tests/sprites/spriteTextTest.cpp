// How text sprites are measured, aligned and drawn.
#include "spriteFixture.h"
#include "sprites/spriteText.h"

namespace {

class TextSprites : public SpriteCanvas {
 protected:
  // The leftmost column of a bar drawn at x = 20 by a sprite that is 101 pixels wide.
  int columnOfBar(bool ownAlignment, int alignment) {
    TorvSpriteText text("t");
    text.setRenderWindow(&window);
    text.setText("|");
    text.width = 101.0F;
    text.x = 20.0F;
    text.style.alignDefault = !ownAlignment;
    text.style.alignment = alignment;
    clear();
    text.draw();
    return firstDrawnColumn();
  }
};

TEST_F(TextSprites, TheSameTextAgainKeepsTheSizeValid) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("stars");
  text.calcSize();
  EXPECT_TRUE(text.sizeIsValid());
  EXPECT_GT(text.width, 10.0F);
  EXPECT_GT(text.height, 5.0F);
  text.setText("stars");
  EXPECT_TRUE(text.sizeIsValid());
  text.setText("Stars");
  EXPECT_FALSE(text.sizeIsValid());
}

TEST_F(TextSprites, TextWithoutAWindowHasNoSizeAndIsReportedWhenDrawn) {
  TorvSpriteText text("label");
  text.setText("stars");
  text.width = 5.0F;
  text.calcSize();
  EXPECT_FLOAT_EQ(0.0F, text.width);
  EXPECT_FALSE(text.sizeIsValid());
  text.draw();
  EXPECT_EQ(1, countEntries("#4573: label.draw() with nil m_renderWindowPtr"));
}

TEST_F(TextSprites, TextMeasuresInItsOwnFontSizeAndLeavesTheWindowsAlone) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("stars");
  text.calcSize();
  const float inWindowSize = text.height;
  text.style.useWindowFontSize = false;
  text.style.fontSize = 36;
  text.calcSize();
  EXPECT_GT(text.height, 2.0F * inWindowSize);
  EXPECT_EQ(12, window.fontSize.current());
}

TEST_F(TextSprites, CentredTextIsDrawnHalfItsWidthFurtherRight) {
  const int left = columnOfBar(false, 1);
  int bar = 0;
  window.getTextSize("|", &bar, nullptr);
  // 101 / 2 is 50; the window centres the text there, so that it begins half its width left of the place.
  EXPECT_EQ(left + 50 - bar / 2, columnOfBar(true, xplTextAttributes::alignmentCentered));
}

TEST_F(TextSprites, RightAlignedTextEndsItsWholeWidthFurtherRight) {
  const int left = columnOfBar(false, 1);
  int bar = 0;
  window.getTextSize("|", &bar, nullptr);
  EXPECT_EQ(left + 101 - bar, columnOfBar(true, xplTextAttributes::alignmentRight));
}

TEST_F(TextSprites, OtherAlignmentsAndTheWindowsOwnDoNotShift) {
  const int left = columnOfBar(false, 1);
  EXPECT_EQ(left, columnOfBar(true, 1));
  EXPECT_EQ(left, columnOfBar(true, 77));
  EXPECT_EQ(left, columnOfBar(false, xplTextAttributes::alignmentCentered)) << "the flag says the window's";
}

TEST_F(TextSprites, HiddenTextDrawsNothingEvenWhenAskedDirectly) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("stars");
  clear();
  text.hide();
  text.draw();
  EXPECT_EQ(-1, firstDrawnColumn());
  text.unhide();
  text.draw();
  EXPECT_NE(-1, firstDrawnColumn());
}

TEST_F(TextSprites, AreNotDrawnWhileDisabled) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("stars");
  text.disable();
  text.draw();
  EXPECT_EQ(-1, firstDrawnColumn());
}

TEST_F(TextSprites, DisabledWithoutAWindowAreNotReported) {
  TorvSpriteText text("label");
  text.disable();
  text.draw();
  EXPECT_EQ(0, countEntries("#4573: label.draw() with nil m_renderWindowPtr"));
}

TEST_F(TextSprites, PlacesTruncateTowardsZero) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("H");
  text.draw();
  const int column = firstDrawnColumn();
  const int row = firstDrawnRow();
  clear();
  text.x = -0.9F;
  text.y = 3.9F;
  text.draw();
  EXPECT_EQ(column, firstDrawnColumn());
  EXPECT_EQ(row + 3, firstDrawnRow());
}

TEST_F(TextSprites, AreDrawnInTheWindowsColourUnlessTheyHaveTheirOwn) {
  window.nonAntialiased.push(1);
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("HHH");
  text.style.textColor = xplColor(10, 20, 30);
  const auto onlyColourIs = [&](xplColor color) {
    clear();
    text.draw();
    EXPECT_NE(-1, firstDrawnColumn());
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 200; ++x) {
        if (isDrawn(x, y)) {
          ASSERT_EQ(color.value(), window.getPixel(x, y).value()) << x << ", " << y;
        }
      }
    }
  };
  onlyColourIs({255, 255, 0});
  text.style.useWindowTextColor = false;
  onlyColourIs({10, 20, 30});
  EXPECT_EQ(xplColor(255, 255, 0), window.textColor.current());
}

TEST_F(TextSprites, MeasureInTheirOwnFontAndLeaveTheWindowsAlone) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("iiiiiiiiii");
  text.calcSize();
  const float narrow = text.width;
  text.style.useWindowFont = false;
  text.style.fontName = "Courier New";
  text.calcSize();
  EXPECT_GT(text.width, 1.5F * narrow) << "all letters are as wide as an m";
  EXPECT_EQ("Arial", window.fontName.current());
  int measured = 0;
  window.getTextSize("iiiiiiiiii", &measured, nullptr);
  EXPECT_FLOAT_EQ(narrow, static_cast<float>(measured));
}

TEST_F(TextSprites, ANewWindowNeedsANewSize) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("stars");
  text.calcSize();
  text.setRenderWindow(&window);
  EXPECT_FALSE(text.sizeIsValid());
}

TEST_F(TextSprites, BeginWithTheWindowsStyle) {
  const TorvTextStyle style;
  EXPECT_TRUE(style.useWindowTextColor);
  EXPECT_TRUE(style.useWindowFont);
  EXPECT_TRUE(style.useWindowFontSize);
  EXPECT_TRUE(style.alignDefault);
  EXPECT_EQ(xplColor(0, 0, 0, 255), style.textColor);
  EXPECT_EQ("", style.fontName);
  EXPECT_EQ(10, style.fontSize);
  const xplTextAttributes attributes = style.toAttributes();
  EXPECT_FALSE(attributes.color || attributes.fontName || attributes.fontSize || attributes.alignment);
}

}  // namespace
