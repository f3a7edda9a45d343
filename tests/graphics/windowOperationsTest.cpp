// What the window's operations do at their edges, on every platform.
#include "graphics/amplify.h"
#include "graphics/canvas.h"
#include "graphics/image.h"
#include "harness/privateFolders.h"

namespace {

constexpr xplColor white(255, 255, 255);
constexpr xplColor red(255, 0, 0);

class WindowOperations : public PrivateFolders {
 protected:
  Canvas canvas{40, 30};
  xplWindow& window = canvas.window();

  int countPixels(xplColor color) {
    int count = 0;
    for (int y = 0; y < window.getHeight(); ++y) {
      for (int x = 0; x < window.getWidth(); ++x) {
        count += window.getPixel(x, y) == color ? 1 : 0;
      }
    }
    return count;
  }
};

TEST_F(WindowOperations, PixelsOutsideAreBlackToReadAndCannotBeWritten) {
  for (const auto& [x, y] :
       std::vector<std::pair<int, int>>{{-1, 0}, {40, 0}, {0, -1}, {0, 30}, {1 << 30, -(1 << 30)}}) {
    window.setPixel(x, y, red);
    EXPECT_EQ(xplColor(0, 0, 0), window.getPixel(x, y)) << x << ", " << y;
  }
  EXPECT_EQ(40 * 30, countPixels(white));
}

TEST_F(WindowOperations, APixelInTheLastCornerIsWritten) {
  window.setPixel(39, 29, red);
  EXPECT_EQ(red, window.getPixel(39, 29));
  EXPECT_EQ(40 * 30 - 1, countPixels(white));
}

TEST_F(WindowOperations, ReadColoursAreOpaqueWhateverWasDrawn) {
  window.setPixel(3, 3, xplColor(1, 2, 3, 0));
  EXPECT_EQ(xplColor(1, 2, 3, 255), window.getPixel(3, 3));
}

TEST_F(WindowOperations, AFilledRectangleEndsBeforeItsRightAndBottomEdge) {
  window.fillRect(xplRect<int>(5, 10, 3, 2), red);
  EXPECT_EQ(6, countPixels(red));
  EXPECT_EQ(red, window.getPixel(12, 6));
  EXPECT_EQ(white, window.getPixel(13, 6));
  EXPECT_EQ(white, window.getPixel(12, 7));
}

TEST_F(WindowOperations, ACircleOfRadius0DrawsNothing) {
  window.fillCircle(10, 10, 0, red);
  EXPECT_EQ(40 * 30, countPixels(white));
}

TEST_F(WindowOperations, ALineLeavesItsLastPixelOut) {
  window.drawLine(5, 5, 9, 5, 1, red);
  EXPECT_EQ(4, countPixels(red));
  EXPECT_EQ(red, window.getPixel(8, 5));
  EXPECT_EQ(white, window.getPixel(9, 5));
}

TEST_F(WindowOperations, ClearFillsWithTheCurrentBackgroundColour) {
  window.clear();
  EXPECT_EQ(40 * 30, countPixels({255, 239, 213}));
  window.backgroundColor.push({1, 2, 3});
  window.clear();
  EXPECT_EQ(40 * 30, countPixels({1, 2, 3}));
  EXPECT_EQ(xplColor(1, 2, 3), window.backgroundColor.pop());
  EXPECT_EQ(xplColor(255, 239, 213), window.backgroundColor.pop());
  EXPECT_EQ(xplColor(255, 239, 213), window.backgroundColor.pop()) << "nothing is pushed any more";
}

TEST_F(WindowOperations, ADrawnTextsColourHoldsForThatTextOnly) {
  xplTextAttributes attributes;
  attributes.color = red;
  window.nonAntialiased.push(1);
  window.drawText(2, 2, "I", &attributes);
  EXPECT_GT(countPixels(red), 0);
  EXPECT_EQ(xplColor(255, 255, 0), window.textColor.current());
  canvas.clear();
  window.drawText(2, 2, "I", nullptr);
  EXPECT_EQ(0, countPixels(red));
  EXPECT_GT(countPixels({255, 255, 0}), 0);
}

TEST_F(WindowOperations, PushedAttributesAreThoseThatAreGiven) {
  xplTextAttributes attributes;
  attributes.fontSize = 30;
  attributes.alignment = 3;
  window.pushTextAttributes(&attributes);
  EXPECT_EQ(30, window.fontSize.current());
  EXPECT_EQ(0, window.textAlignment.current());
  EXPECT_EQ("Arial", window.fontName.current());
  window.popTextAttributes(&attributes);
  EXPECT_EQ(12, window.fontSize.current());
  EXPECT_EQ(-1, window.textAlignment.current());
  window.pushTextAttributes(nullptr);
  window.popTextAttributes(nullptr);
  EXPECT_EQ(12, window.fontSize.current());
}

TEST_F(WindowOperations, AlignmentsMapToRightCentredAndElseLeft) {
  for (const auto& [given, expected] :
       std::vector<std::pair<int, int>>{{2, 1}, {3, 0}, {1, -1}, {0, -1}, {77, -1}}) {
    xplTextAttributes attributes;
    attributes.alignment = given;
    window.pushTextAttributes(&attributes);
    EXPECT_EQ(expected, window.textAlignment.current()) << given;
    window.popTextAttributes(&attributes);
  }
}

TEST_F(WindowOperations, MeasuringNeedsNeitherOutArgument) {
  int width = -1;
  int height = -1;
  window.getTextSize("moon", &width, nullptr);
  window.getTextSize("moon", nullptr, &height);
  window.getTextSize("moon", nullptr, nullptr);
  EXPECT_GT(width, 10);
  EXPECT_GT(height, 10);
}

TEST_F(WindowOperations, NothingIsSeenBeforeTheFlush) {
  window.fillRect(xplRect<int>(0, 0, 40, 30), red);
  EXPECT_EQ(xplColor(0, 0, 0), canvas.native().shownPixel(5, 5));
  window.flush();
  EXPECT_EQ(red, canvas.native().shownPixel(5, 5));
  EXPECT_EQ(red, canvas.native().shownPixel(39, 29));
}

TEST_F(WindowOperations, DrawingStraightToTheWindowLeavesTheBackBufferAlone) {
  window.flush();
  window.setUseBackBuffer(false);
  window.fillRect(xplRect<int>(0, 0, 20, 30), red);
  EXPECT_EQ(red, canvas.native().shownPixel(19, 5)) << "seen at once";
  EXPECT_EQ(white, canvas.native().shownPixel(20, 5));
  window.flush();
  EXPECT_EQ(red, canvas.native().shownPixel(0, 0)) << "a flush does nothing meanwhile";
  window.setUseBackBuffer(true);
  EXPECT_EQ(white, window.getPixel(0, 0));
  window.flush();
  EXPECT_EQ(white, canvas.native().shownPixel(0, 0));
}

TEST_F(WindowOperations, WithoutANativeWindowDoNothing) {
  xplWindow none(nullptr);
  EXPECT_EQ(0, none.getWidth());
  EXPECT_EQ(0, none.getHeight());
  none.clear();
  none.fillRect(xplRect<int>(0, 0, 10, 10), red);
  none.drawLine(0, 0, 5, 5, 1, red);
  none.setPixel(0, 0, red);
  none.flush();
  none.setUseBackBuffer(false);
  EXPECT_EQ(xplColor(0, 0, 0), none.getPixel(0, 0));
}

TEST_F(WindowOperations, KnowTheirPlaceOnTheScreen) {
  TestWindow native(50, 20, 30, 40);
  xplWindow placed(native.handle());
  EXPECT_EQ(30, placed.getLeft());
  EXPECT_EQ(40, placed.getTop());
  EXPECT_EQ(80, placed.getRight());
  EXPECT_EQ(60, placed.getBottom());
}

TEST_F(WindowOperations, KeptFillingTheWindowStartsAtItsPlaceOnTheScreen) {
  TestWindow native(50, 40, 30, 10);
  xplWindow placed(native.handle());
  placed.fillRect(xplRect<int>(0, 0, 50, 40), white);
  placed.fillWindow(red);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 50; ++x) {
      ASSERT_EQ(x >= 30 && y >= 10 ? red : white, placed.getPixel(x, y)) << x << ", " << y;
    }
  }
}

TEST_F(WindowOperations, StartFromWhatTheWindowShows) {
  window.fillRect(xplRect<int>(0, 0, 40, 30), red);
  window.flush();
  xplWindow second(canvas.native().handle());
  EXPECT_EQ(red, second.getPixel(7, 7));
}

TEST_F(WindowOperations, TransparentPixelsOfAnImageLeaveTheWindowAlone) {
  xplImage image;
  image.initWithSizeAndColor(3, 3, {7, 7, 7});
  image.setPixel(1, 1, red);
  image.setTransparentColor({7, 7, 7});
  image.drawOnWindow(window, 10, 10);
  EXPECT_EQ(1, countPixels(red));
  EXPECT_EQ(40 * 30 - 1, countPixels(white));
}

TEST(Amplify, TruncatesAndStopsAt255) {
  EXPECT_EQ(xplColor(255, 200, 20), amplified({200, 100, 10}, 2.0F, 2.0F, 2.0F));
  EXPECT_EQ(xplColor(99, 33, 0), amplified({199, 100, 10}, 0.5F, 0.333F, 0.0F));
}

TEST(Amplify, KeptANegativeProductWraps) {
  EXPECT_EQ(246, amplifiedChannel(10, -1.0F));
  EXPECT_EQ(0, amplifiedChannel(255, -256.0F / 255.0F * 1.0F));
  EXPECT_EQ(255, amplifiedChannel(10, 1.0e30F));
  EXPECT_EQ(0, amplifiedChannel(10, -1.0e30F));
}

}  // namespace
