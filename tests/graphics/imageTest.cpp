// Tests of making images and of their pixels.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/image.h"
#include "imageFixture.h"

namespace {

constexpr xplColor outside(255, 228, 181);

class ImageTest : public ImageFixture {};

TEST_F(ImageTest, AnImageWithoutBitmapIsEmpty) {
  xplImage image;
  EXPECT_EQ(image.getWidth(), 0);
  EXPECT_EQ(image.getHeight(), 0);
  EXPECT_EQ(image.getPixel(0, 0), outside);
  image.setPixel(0, 0, red);
  image.amplifyPixel(0, 0, 2, 2, 2);
  image.drawText(0, 0, "abc", {});
  image.resizeTo(5, 5);
  image.crop(0, 0, 0, 0);
  image.scaleBy(2.0F);
  EXPECT_EQ(image.getWidth(), 0);
}

TEST_F(ImageTest, ANewImageHasTheSizeAndIsFilledWithTheColor) {
  xplImage image;
  image.initWithSizeAndColor(4, 3, xplColor(10, 20, 30, 40));
  EXPECT_EQ(image.getWidth(), 4);
  EXPECT_EQ(image.getHeight(), 3);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(12, xplColor(10, 20, 30, 255)));
  EXPECT_EQ(logText().find("ERROR"), std::string::npos);
}

TEST_F(ImageTest, MakingAnImageAnewIsReportedAndDone) {
  xplImage image;
  image.initWithSizeAndColor(4, 3, red);
  image.initWithSizeAndColor(2, 5, blue);
  EXPECT_EQ(countEntries("xplImageWin.initWithSizeAndColor() called but m_GDIHBitmap not null", "ERROR"), 1);
  EXPECT_EQ(image.getWidth(), 2);
  EXPECT_EQ(image.getHeight(), 5);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(10, blue));
}

TEST_F(ImageTest, ASizeThatNoPictureCanHaveIsReportedAndChangesNothing) {
  xplImage image;
  image.initWithSizeAndColor(2, 2, red);
  for (const auto& [width, height] : {std::pair{0, 5},
                                      {5, 0},
                                      {-5, 5},
                                      {5, -5},
                                      {32768, 1},
                                      {1, 32768},
                                      {32767, 32767},
                                      {2147483647, 2147483647}}) {
    xplImage fresh;
    fresh.initWithSizeAndColor(width, height, red);
    EXPECT_EQ(fresh.getWidth(), 0);
    image.resizeTo(width, height);
    EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(4, red));
    const std::string size = " got no bitmap of w=" + std::to_string(width) + ", h=" + std::to_string(height);
    EXPECT_EQ(countEntries("xplImageWin.initWithSizeAndColor()" + size, "ERROR"), 1);
    EXPECT_EQ(countEntries("xplImageWin.resizeTo_impl()" + size, "ERROR"), 1);
  }
}

TEST_F(ImageTest, PixelsOutsideHaveTheColorThatStandsForOutside) {
  xplImage image;
  image.initWithSizeAndColor(4, 3, red);
  for (const auto& [x, y] :
       {std::pair{-1, 0}, {4, 0}, {0, -1}, {0, 3}, {-2147483647 - 1, 0}, {0, 2147483647}}) {
    EXPECT_EQ(image.getPixel(x, y), outside) << x << ' ' << y;
    image.setPixel(x, y, blue);
  }
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(12, red));
}

TEST_F(ImageTest, SetPixelChangesThatPixelOnly) {
  xplImage image;
  image.initWithSizeAndColor(2, 2, red);
  image.setPixel(1, 0, xplColor(1, 2, 3, 4));
  EXPECT_EQ(pixelsOf(image), (std::vector<xplColor>{red, {1, 2, 3, 255}, red, red}));
}

TEST_F(ImageTest, AmplifyPixelMultipliesTheChannels) {
  xplImage image;
  image.initWithSizeAndColor(2, 1, xplColor(200, 100, 10));
  image.amplifyPixel(0, 0, 2.0F, 2.0F, 2.0F);
  EXPECT_EQ(pixelsOf(image), (std::vector<xplColor>{{255, 200, 20}, {200, 100, 10}}));
}

TEST_F(ImageTest, TextIsDrawnOverThePicture) {
  xplImage image;
  image.initWithSizeAndColor(40, 20, blue);
  xplTextDrawingInfo info;
  info.color = red;
  info.nonAntialiased = 1;
  image.drawText(1, 1, "H", info);
  int ofText = 0;
  for (const xplColor color : pixelsOf(image)) {
    EXPECT_TRUE(color == red || color == blue);
    ofText += color == red ? 1 : 0;
  }
  EXPECT_GT(ofText, 10);
}

}  // namespace
