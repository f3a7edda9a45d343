// Tests of resizing, scaling and cropping images.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/image.h"
#include "imageFixture.h"

namespace {

class ImageResizeTest : public ImageFixture {};

TEST_F(ImageResizeTest, ResizingDropsAndRepeatsPixels) {
  xplImage image;
  fillWithPlaces(image, 4, 2);
  image.resizeTo(8, 2);
  ASSERT_EQ(image.getWidth(), 8);
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 8; ++x) {
      EXPECT_EQ(image.getPixel(x, y), place(x / 2, y)) << x << ' ' << y;
    }
  }
  EXPECT_EQ(countEntries("xplImageWin.resizeTo_impl() exiting with new w=8, new h=2", "Info"), 1);
}

TEST_F(ImageResizeTest, ResizingToTheSameSizeDoesNothing) {
  xplImage image;
  fillWithPlaces(image, 4, 2);
  image.resizeTo(4, 2);
  EXPECT_EQ(entriesThatBegin("xplImageWin.resizeTo_impl()"), 0);
  image.resizeTo(4, 1);
  EXPECT_EQ(entriesThatBegin("xplImageWin.resizeTo_impl()"), 1);
  EXPECT_EQ(image.getHeight(), 1);
}

TEST_F(ImageResizeTest, ScalingTruncatesTheNewSize) {
  xplImage image;
  image.initWithSizeAndColor(5, 3, red);
  image.scaleBy(0.7F);
  EXPECT_EQ(image.getWidth(), 3);
  EXPECT_EQ(image.getHeight(), 2);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(6, red));
}

TEST_F(ImageResizeTest, ScalingToNothingOrBeyondEverythingChangesNothing) {
  xplImage image;
  image.initWithSizeAndColor(5, 3, red);
  for (const float factor : {0.0F, -1.0F, 1e30F, -1e30F}) {
    image.scaleBy(factor);
    EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(15, red)) << factor;
  }
}

TEST_F(ImageResizeTest, CroppingKeepsTheRegion) {
  xplImage image;
  fillWithPlaces(image, 6, 6);
  image.crop(1, 2, 3, 4);
  ASSERT_EQ(image.getWidth(), 3);
  ASSERT_EQ(image.getHeight(), 4);
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 3; ++x) {
      EXPECT_EQ(image.getPixel(x, y), place(x + 1, y + 2)) << x << ' ' << y;
    }
  }
}

TEST_F(ImageResizeTest, CroppingBeyondTheEdgeGivesBlackThere) {
  xplImage image;
  image.initWithSizeAndColor(4, 4, red);
  image.crop(2, 3, 3, 2);
  const xplColor black(0, 0, 0);
  EXPECT_EQ(pixelsOf(image), (std::vector<xplColor>{red, red, black, black, black, black}));
}

TEST_F(ImageResizeTest, CroppingToTheWholeSizeOrMoreDoesNothing) {
  xplImage image;
  fillWithPlaces(image, 6, 6);
  for (const auto& [width, height] : {std::pair{6, 3}, {3, 6}, {7, 1}, {-1, 3}, {3, -1}}) {
    image.crop(0, 0, width, height);
    EXPECT_EQ(image.getWidth(), 6);
    EXPECT_EQ(image.getHeight(), 6);
  }
  EXPECT_EQ(logText().find("ERROR"), std::string::npos);
}

TEST_F(ImageResizeTest, CroppingToNothingIsReportedAndChangesNothing) {
  xplImage image;
  image.initWithSizeAndColor(2, 2, red);
  image.crop(0, 0, 0, 1);
  EXPECT_EQ(countEntries("xplImageWin.crop_impl() got no bitmap of w=0, h=1", "ERROR"), 1);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(4, red));
}

TEST_F(ImageResizeTest, KeptCropComparesTheLeftEdgeWithTheHeight) {
  xplImage image;
  fillWithPlaces(image, 100, 50);
  for (const int x : {50, 60, 99}) {
    image.crop(x, 0, 10, 10);
    EXPECT_EQ(image.getWidth(), 100) << x;
  }
  image.crop(49, 0, 10, 10);
  EXPECT_EQ(image.getWidth(), 10);
  EXPECT_EQ(image.getPixel(0, 0), place(49, 0));
}

TEST_F(ImageResizeTest, KeptCropComparesTheTopEdgeWithTheWidth) {
  xplImage tall;
  fillWithPlaces(tall, 50, 100);
  for (const int y : {50, 60, 99}) {
    tall.crop(0, y, 10, 10);
    EXPECT_EQ(tall.getHeight(), 100) << y;
  }
  tall.crop(0, 49, 10, 10);
  EXPECT_EQ(tall.getPixel(0, 0), place(0, 49));

  xplImage wide;
  wide.initWithSizeAndColor(100, 50, red);
  wide.crop(0, 60, 10, 10);  // below the picture, yet allowed
  EXPECT_EQ(pixelsOf(wide), std::vector<xplColor>(100, xplColor(0, 0, 0)));
}

}  // namespace
