// What each background covers the window with.
#include "graphics/image.h"
#include "harness/privateFolders.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"
#include "world/skyBackground.h"
#include "world/skyBackgroundFactory.h"

namespace {

class SkyBackgrounds : public PrivateFolders {
 protected:
  // A background for the setting's value, drawn once on a window of this size.
  void drawBackground(int value, int width, int height) {
    xplUserSettings().set("background", value);
    native = std::make_unique<TestWindow>(width, height, 30, 20);
    window = std::make_unique<xplWindow>(native->handle());
    background = cSkyBackgroundFactory::create();
    background->setRenderWindow(window.get());
    background->draw();
  }
  void expectAll(xplColor color) {
    for (int y = 0; y < window->getHeight(); ++y) {
      for (int x = 0; x < window->getWidth(); ++x) {
        ASSERT_EQ(color.value(), window->getPixel(x, y).value()) << x << ", " << y;
      }
    }
  }
  void expectTiles() {
    xplImage tile;
    ASSERT_TRUE(tile.initWithResource(124));
    for (int y = 0; y < window->getHeight(); y += 7) {
      for (int x = 0; x < window->getWidth(); x += 3) {
        ASSERT_EQ(tile.getPixel(x % tile.getWidth(), y % tile.getHeight()).value(),
                  window->getPixel(x, y).value())
            << x << ", " << y;
      }
    }
  }

  std::unique_ptr<TestWindow> native;
  std::unique_ptr<xplWindow> window;
  std::unique_ptr<cSkyBackground> background;
};

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
    for (int x = 0; x < 300; x += 5) {
      ASSERT_EQ(gradient.getPixel(x, y).value(), window->getPixel(x, y).value()) << x << ", " << y;
    }
  }
  background->draw();
  background->draw();
  EXPECT_EQ(1, countEntries("skyBackground resizedTo: 300 x 200"));
}

TEST_F(SkyBackgrounds, Value3RepeatsTheTileUpToTheClippedEdges) {
  drawBackground(3, 1400, 1100);
  expectTiles();
}

TEST_F(SkyBackgrounds, AnyOtherValueGivesTheTile) {
  for (const int value : {7, -1}) {
    drawBackground(value, 100, 50);
    expectTiles();
  }
}

TEST_F(SkyBackgrounds, AWindowSmallerThanTheTileShowsItsCorner) {
  drawBackground(3, 5, 3);
  expectTiles();
}

TEST_F(SkyBackgrounds, PrepareInATimedBlockOnTheFirstDraw) {
  drawBackground(3, 50, 50);
  background->draw();
  EXPECT_EQ(1, countEntries("Entering: cSkyBackground_ImageTiled.initialize()"));
  EXPECT_EQ(1, countEntries("Exiting: cSkyBackground_ImageTiled.initialize(). Duration:0.000 sec"));
  EXPECT_EQ(1, countEntries("Entering: cSkyBackgroundFactory.create()"));
  EXPECT_EQ(1, countEntries("Exiting: cSkyBackgroundFactory.create(). Duration:0.000 sec"));
}

TEST_F(SkyBackgrounds, ThatAreDisabledStayUndrawn) {
  drawBackground(2, 20, 20);
  window->fillRect(xplRect<int>(0, 0, 20, 20), {1, 2, 3});
  background->disable();
  background->draw();
  expectAll({1, 2, 3});
}

class MissingPicture : public cSkyBackground_Image {
 public:
  MissingPicture() : cSkyBackground_Image({9999, "missing.bmp"}, "MissingPicture.initialize()") {}
  int loaded = 0;

 protected:
  void pictureLoaded() override { ++loaded; }
  void drawPrepared() override { picture().draw(); }
};

TEST_F(SkyBackgrounds, APictureThatCannotBeLoadedLeavesTheWindowAlone) {
  native = std::make_unique<TestWindow>(20, 20);
  window = std::make_unique<xplWindow>(native->handle());
  window->fillRect(xplRect<int>(0, 0, 20, 20), {1, 2, 3});
  MissingPicture missing;
  missing.setRenderWindow(window.get());
  missing.draw();
  missing.draw();
  expectAll({1, 2, 3});
  EXPECT_EQ(0, missing.loaded);
  EXPECT_NE(std::string::npos, logText().find("#4653b: image.initWithResource_impl failed:9999"));
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
