// What the tests of the old television share: a window that shows a desktop, with the effect on it.
#pragma once

#include <memory>
#include <vector>

#include "harness/privateFolders.h"
#include "windowharness/testWindow.h"
#include "world/oldTvEffect.h"

inline constexpr xplColor desktop(200, 120, 40);
inline constexpr xplColor dark(5, 5, 16);
inline constexpr xplColor white(255, 255, 255);

class OldTv : public PrivateFolders {
 protected:
  // A window that shows a desktop, with an effect that has started on it.
  void makeEffect(int width, int height, int left = 0, int top = 0) {
    effect.reset();
    window.reset();
    native = std::make_unique<TestWindow>(width, height, left, top);
    window = std::make_unique<xplWindow>(native->handle());
    window->fillRect(xplRect<int>(0, 0, width, height), desktop);
    window->flush();
    startEffect();
  }
  void startEffect() {
    effect = std::make_unique<cWindowTransitionEffect_OldTV>(progress);
    effect->initWithWindow(window.get(), 0);
  }
  void drawFrames(int count) {
    for (int i = 0; i < count; ++i) {
      ASSERT_FALSE(effect->finished()) << "frame " << i;
      effect->draw();
    }
  }
  // Frames until the effect has finished; -1 where it does not.
  int framesToTheEnd() {
    for (int frames = 0; frames < 100; ++frames) {
      if (effect->finished()) {
        return frames;
      }
      effect->draw();
    }
    return -1;
  }
  // The colours that a viewer sees in a column, from top to bottom, each run of the same colour once.
  std::vector<xplColor> runsOfColumn(int x) {
    std::vector<xplColor> runs;
    for (int y = 0; y < window->getHeight(); ++y) {
      const xplColor color = native->shownPixel(x, y);
      if (runs.empty() || !(runs.back() == color)) {
        runs.push_back(color);
      }
    }
    return runs;
  }
  int countInColumn(int x, xplColor color) {
    int count = 0;
    for (int y = 0; y < window->getHeight(); ++y) {
      count += native->shownPixel(x, y) == color ? 1 : 0;
    }
    return count;
  }
  int countInRow(int y, xplColor color) {
    int count = 0;
    for (int x = 0; x < window->getWidth(); ++x) {
      count += native->shownPixel(x, y) == color ? 1 : 0;
    }
    return count;
  }
  int countAll(xplColor color) {
    int count = 0;
    for (int y = 0; y < window->getHeight(); ++y) {
      count += countInRow(y, color);
    }
    return count;
  }

  sOldTvProgress progress;
  std::unique_ptr<TestWindow> native;
  std::unique_ptr<xplWindow> window;
  std::unique_ptr<cWindowTransitionEffect_OldTV> effect;
};
