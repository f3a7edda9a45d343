// What the tests of the window's operations share: a small white window.
#pragma once

#include "graphics/canvas.h"
#include "harness/privateFolders.h"

class WindowOperations : public PrivateFolders {
 protected:
  static constexpr xplColor white{255, 255, 255};
  static constexpr xplColor red{255, 0, 0};

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
