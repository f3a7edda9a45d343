// What the tests of backgrounds share: a window somewhere on the screen, and the background of a setting on
// it.
#pragma once

#include <memory>

#include "graphics/image.h"
#include "harness/privateFolders.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"
#include "world/skyBackground.h"
#include "world/skyBackgroundFactory.h"

class SkyBackgrounds : public PrivateFolders {
 protected:
  void makeWindow(int width, int height) {
    native = std::make_unique<TestWindow>(width, height, 30, 20);
    window = std::make_unique<xplWindow>(native->handle());
  }
  // A background for the setting's value, drawn once on a window of this size.
  void drawBackground(int value, int width, int height) {
    xplUserSettings().set("background", value);
    makeWindow(width, height);
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
  // Looks at every stepX-th column and stepY-th row, and at the last ones.
  void expectTiles(int stepX, int stepY) {
    xplImage tile;
    ASSERT_TRUE(tile.initWithResource(124));
    const int width = window->getWidth();
    const int height = window->getHeight();
    for (int y = 0; y < height; y += 1) {
      for (int x = 0; x < width; x += 1) {
        if ((x % stepX == 0 && y % stepY == 0) || (x == width - 1 && y % stepY == 0) ||
            (y == height - 1 && x % stepX == 0)) {
          ASSERT_EQ(tile.getPixel(x % tile.getWidth(), y % tile.getHeight()).value(),
                    window->getPixel(x, y).value())
              << x << ", " << y;
        }
      }
    }
  }

  std::unique_ptr<TestWindow> native;
  std::unique_ptr<xplWindow> window;
  std::unique_ptr<cSkyBackground> background;
};
