// What each background covers the window with.
#include "skyFixture.h"

namespace {

TEST_F(SkyBackgrounds, Value0IsNearlyBlackBlueUpToTheLastPixel) {
  drawBackground(0, 60, 40);
  expectAll({0, 0, 20});
}

TEST_F(SkyBackgrounds, Value1IsDarkBlue) {
  drawBackground(1, 60, 40);
  expectAll({0, 0, 41});
}

TEST_F(SkyBackgrounds, Value2StretchesTheGradientOnce) {
  drawBackground(2, 300, 200);
  xplImage gradient;
  ASSERT_TRUE(gradient.initWithResource(123));
  gradient.resizeTo(300, 200);
  for (int y = 0; y < 200; ++y) {
    for (int x = 0; x < 300; ++x) {
      ASSERT_EQ(gradient.getPixel(x, y).value(), window->getPixel(x, y).value()) << x << ", " << y;
    }
  }
  background->draw();
  background->draw();
  EXPECT_EQ(1, countEntries("skyBackground resizedTo: 300 x 200"));
}

TEST_F(SkyBackgrounds, Value3RepeatsTheTileUpToTheClippedEdges) {
  drawBackground(3, 1400, 1100);
  expectTiles(7, 11);
}

TEST_F(SkyBackgrounds, AnyOtherValueGivesTheTile) {
  for (const int value : {7, -1}) {
    drawBackground(value, 100, 50);
    expectTiles(1, 1);
  }
}

TEST_F(SkyBackgrounds, AWindowSmallerThanTheTileShowsItsCorner) {
  drawBackground(3, 5, 3);
  expectTiles(1, 1);
}

// A tile of 300 x 70 pixels.
class SmallTiles : public cSkyBackground_ImageTiled {
 public:
  void resizeToWindow() override {
    cSkyBackground_ImageTiled::resizeToWindow();
    picture().resizeImage(300, 70);
    calcSize();
  }
  xplImage& tile() { return *picture().image(); }
};

TEST_F(SkyBackgrounds, AThousandPixelsTakeFourColumnsOf300) {
  makeWindow(1000, 100);
  SmallTiles tiles;
  tiles.setRenderWindow(window.get());
  tiles.draw();
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 1000; ++x) {
      ASSERT_EQ(tiles.tile().getPixel(x % 300, y % 70).value(), window->getPixel(x, y).value())
          << x << ", " << y;
    }
  }
}

TEST_F(SkyBackgrounds, WithoutAUsableSettingAreTheDefaultOne) {
  xplUserSettings().set("background", "blue");
  makeWindow(40, 30);
  background = cSkyBackgroundFactory::create();
  background->setRenderWindow(window.get());
  background->draw();
  expectTiles(1, 1);
}

TEST_F(SkyBackgrounds, SizesAreTheWindowsOrThePictures) {
  drawBackground(0, 60, 40);
  background->calcSize();
  EXPECT_FLOAT_EQ(60.0F, background->width);
  drawBackground(3, 60, 40);
  xplImage tile;
  ASSERT_TRUE(tile.initWithResource(124));
  EXPECT_FLOAT_EQ(static_cast<float>(tile.getWidth()), background->width);
  EXPECT_FLOAT_EQ(static_cast<float>(tile.getHeight()), background->height);
}

}  // namespace
