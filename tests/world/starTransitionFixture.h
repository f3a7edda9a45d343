// What the tests of transitions share: the message stars and rows of points that they are sent to.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "world/starTransitionKinds.h"
#include "worldFixture.h"

class StarTransition : public World {
 protected:
  inline static const xplRect<int> screen{0, 0, 640, 480};

  StarTransition() {
    for (std::size_t i = 0; i < TnoctisWorld::msgStarCount; ++i) {
      stars.push_back(std::make_unique<cMsgStar>(2.5F, 0.4F, 0.5F, 30.0F));
    }
  }

  // Points in a row, ten pixels apart, from (100, 200) on.
  static std::vector<sTargetPoint> row(int count) {
    std::vector<sTargetPoint> points;
    for (int i = 0; i < count; ++i) {
      points.push_back({100 + 10 * i, 200});
    }
    return points;
  }

  template <class Effect>
  void start(int points) {
    Effect(screen, stars).startTransition(row(points));
  }
  void runFor(int seconds) {
    for (int i = 0; i < 25 * seconds; ++i) {
      for (const auto& star : stars) {
        star->update(0.04F);
      }
    }
  }
  int countVisible() const {
    return static_cast<int>(
        std::count_if(stars.begin(), stars.end(), [](const auto& star) { return star->isVisible; }));
  }

  std::vector<std::unique_ptr<cMsgStar>> stars;
};
