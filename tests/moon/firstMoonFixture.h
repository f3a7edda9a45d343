// What tests of illuminated moons share, since the first moon of a process decides how all later ones look.
#pragma once

#include <memory>

#include "moon/moonFixture.h"
#include "moon/moonSprite.h"

// Every test that illuminates a moon begins here: in a process in which one moon was illuminated, always at
// the same moment, whichever tests ran before.
class FirstMoonTest : public MoonTest {
 protected:
  static constexpr std::int64_t momentOfTheFirstMoon = 1486144800;  // 3 February 2017, 18:00 UTC
  static constexpr int phaseOfTheFirstMoon = 271;                   // waxing: lit on the right

  void SetUp() override {
    MoonTest::SetUp();
    clock.set({momentOfTheFirstMoon, 0});
    paintedMoon(2, {0, 0, 0})->illuminate();
  }

  // A sprite of this moment with a picture of one colour and this size.
  static std::unique_ptr<cMoonSprite> paintedMoon(int size, xplColor color) {
    auto moon = std::make_unique<cMoonSprite>();
    moon->image()->initWithSizeAndColor(size, size, color);
    moon->calcSize();
    return moon;
  }
};
