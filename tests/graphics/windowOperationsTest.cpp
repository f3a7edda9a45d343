// What the window's operations draw, and where they end, on every platform.
#include <utility>
#include <vector>

#include "graphics/image.h"
#include "windowOperationsFixture.h"

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

TEST_F(WindowOperations, TransparentPixelsOfAnImageLeaveTheWindowAlone) {
  xplImage image;
  image.initWithSizeAndColor(3, 3, {7, 7, 7});
  image.setPixel(1, 1, red);
  image.setTransparentColor({7, 7, 7});
  image.drawOnWindow(window, 10, 10);
  EXPECT_EQ(1, countPixels(red));
  EXPECT_EQ(40 * 30 - 1, countPixels(white));
}
