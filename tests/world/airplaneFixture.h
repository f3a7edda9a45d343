// What the tests of airplanes share: a window of plain sky and an airplane anywhere on it.
#pragma once

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "harness/privateFolders.h"
#include "windowharness/testWindow.h"
#include "world/airplane.h"

class Airplanes : public PrivateFolders {
 protected:
  static constexpr xplColor sky{0, 0, 20};

  void makeWindow(int width, int height) {
    window.reset();
    native = std::make_unique<TestWindow>(width, height);
    window = std::make_unique<xplWindow>(native->handle());
    window->fillRect(xplRect<int>(0, 0, width, height), sky);
  }
  // An airplane on the window that has taken its place and stands at (x, y) now, its light on or off.
  std::unique_ptr<cAirplane> makeAirplaneAt(float x, float y, bool lightOn) {
    auto airplane = std::make_unique<cAirplane>();
    airplane->setRenderWindow(window.get());
    airplane->update(2.2F - airplane->lightClock() + 0.01F);  // the cycle begins anew
    airplane->update(lightOn ? 2.1F : 1.0F);
    EXPECT_EQ(lightOn, airplane->isLightOn());
    airplane->x = x;
    airplane->y = y;
    return airplane;
  }
  // Every pixel of the window: the listed places have the colour, the rest is sky.
  void expectOnly(const std::vector<std::pair<int, int>>& places, xplColor color) {
    for (int y = 0; y < window->getHeight(); ++y) {
      for (int x = 0; x < window->getWidth(); ++x) {
        const bool listed = std::find(places.begin(), places.end(), std::pair(x, y)) != places.end();
        ASSERT_EQ((listed ? color : sky).value(), window->getPixel(x, y).value()) << x << ", " << y;
      }
    }
  }

  std::unique_ptr<TestWindow> native;
  std::unique_ptr<xplWindow> window;
};
