// What the tests of sprites share: a black window of 200 x 100 pixels and a look at what was drawn on it.
#pragma once

#include "graphics/window.h"
#include "harness/privateFolders.h"
#include "windowharness/testWindow.h"

class SpriteCanvas : public PrivateFolders {
 protected:
  SpriteCanvas() { clear(); }
  void clear() { window.fillRect(xplRect<int>(0, 0, 200, 100), {0, 0, 0}); }
  bool isDrawn(int x, int y) { return window.getPixel(x, y) != xplColor(0, 0, 0); }
  // The leftmost column and the topmost row in which anything is drawn; -1 for none.
  int firstDrawnColumn() {
    for (int x = 0; x < 200; ++x) {
      for (int y = 0; y < 100; ++y) {
        if (isDrawn(x, y)) {
          return x;
        }
      }
    }
    return -1;
  }
  int firstDrawnRow() {
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 200; ++x) {
        if (isDrawn(x, y)) {
          return y;
        }
      }
    }
    return -1;
  }
  void expectAll(xplColor color) {
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 200; ++x) {
        ASSERT_EQ(color.value(), window.getPixel(x, y).value()) << x << ", " << y;
      }
    }
  }

  TestWindow native{200, 100};
  xplWindow window{native.handle()};
};
