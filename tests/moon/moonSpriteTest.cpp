// The moon's picture: which is loaded, how it is darkened once, and that it leaves the sky around it alone.
#include "moon/firstMoonFixture.h"
#include "moon/moonShading.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"

namespace {

using MoonSprite = FirstMoonTest;

TEST_F(MoonSprite, BeginsWithoutPictureAndKnowsThePresentPhase) {
  clock.set({1463865300, 0});
  const cMoonSprite moon;
  EXPECT_STREQ("moonSprite", moon.name());
  EXPECT_EQ(0.0F, moon.width);
  EXPECT_EQ(0.0F, moon.height);
  EXPECT_EQ(1463865300, moon.moonInfo().time());
  EXPECT_EQ(0, moon.moonInfo().phase());
}

TEST_F(MoonSprite, KeptPhaseOfTheFirstMoonOfTheProcess) {
  clock.set({1463865300, 0});
  const auto later = paintedMoon(100, {200, 100, 50});
  ASSERT_EQ(0, later->moonInfo().phase());
  later->illuminate();
  xplImage expected;
  expected.initWithSizeAndColor(100, 100, {200, 100, 50});
  shadeMoon(expected, 100.0F, 100.0F, phaseOfTheFirstMoon);
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 100; ++x) {
      ASSERT_EQ(expected.getPixel(x, y).value(), later->image()->getPixel(x, y).value()) << x << ", " << y;
      ASSERT_EQ(moonPixelIllumination(x, y, 100.0F, phaseOfTheFirstMoon), later->pixelIllumination(x, y));
    }
  }
}

TEST_F(MoonSprite, IsDarkenedOnceMoreByASecondCall) {
  const auto moon = paintedMoon(100, {200, 100, 50});
  moon->illuminate();
  const xplColor once = moon->image()->getPixel(90, 50);
  ASSERT_LT(once.red(), 200);
  moon->illuminate();
  EXPECT_LT(moon->image()->getPixel(90, 50).red(), once.red());
}

TEST_F(MoonSprite, LogsItsSizeAndTheTimeThatDarkeningTook) {
  const auto moon = paintedMoon(100, {200, 100, 50});
  moon->illuminate();
  EXPECT_EQ(1, countEntries("moon size:100px", "Info"));
  EXPECT_EQ(2, countEntries("Entering: cMoonSprite.illuminate() classic", "Info"))
      << "the first moon's and this";
  EXPECT_EQ(2, countEntries("Exiting: cMoonSprite.illuminate() classic. Duration:0.000 sec", "Info"));
}

TEST_F(MoonSprite, WithoutAnImageOnlyLogsTheBlock) {
  cMoonSprite moon;
  moon.linkImage(nullptr);
  moon.illuminate();
  EXPECT_EQ(2, countEntries("Entering: cMoonSprite.illuminate() classic"));
  EXPECT_EQ(2, countEntries("Exiting: cMoonSprite.illuminate() classic. Duration:0.000 sec"));
  EXPECT_EQ(1, countEntries("moon size:2px"));
  EXPECT_EQ(0, countEntries("moon size:0px"));
}

TEST_F(MoonSprite, KeptLightOfTheNorthAlsoForTheSouth) {
  xplUserSettings().set("fromSouthHemisphere", true);
  const auto moon = paintedMoon(100, {200, 100, 50});
  moon->illuminate();
  EXPECT_GT(moon->image()->getPixel(90, 50).red(), 100) << "waxing: lit on the right";
  EXPECT_EQ(0, moon->image()->getPixel(10, 50).red());
}

TEST_F(MoonSprite, IlluminatedLaterThanTheClockJumpedBackKeepsItsPhase) {
  const auto moon = paintedMoon(100, {200, 100, 50});
  clock.set({momentOfTheFirstMoon - 10 * 86400, 0});
  moon->illuminate();
  EXPECT_EQ(phaseOfTheFirstMoon, moon->moonInfo().phase());
  EXPECT_GT(moon->image()->getPixel(90, 50).red(), 100);
}

TEST_F(MoonSprite, ThatFailsToLoadStaysAsItWas) {
  cMoonSprite moon;
  ASSERT_TRUE(moon.loadMoonImage(100));
  const xplColor middle = moon.image()->getPixel(50, 50);
  EXPECT_FALSE(moon.loadMoonImage(300)) << "it has a picture";
  EXPECT_EQ(1, countEntries("xplImageWin.initWithResource_impl(122) called but hBitmap not null", "ERROR"));
  EXPECT_EQ(100.0F, moon.width);
  EXPECT_EQ(100.0F, moon.height);
  EXPECT_EQ(middle, moon.image()->getPixel(50, 50));
}

// A picture as the program's are: a disc on black.
class MoonOnASky : public MoonSprite {
 protected:
  static constexpr xplColor sky{250, 240, 230};
  static constexpr int size = 50;

  static bool isInDisc(int x, int y) { return (x - 25) * (x - 25) + (y - 25) * (y - 25) <= 25 * 25; }

  void SetUp() override {
    MoonSprite::SetUp();
    moon = paintedMoon(size, {0, 0, 0});
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        if (isInDisc(x, y)) {
          moon->image()->setPixel(x, y, {200, 200, 200});
        }
      }
    }
    moon->illuminate();
    moon->setRenderWindow(&window);
    window.backgroundColor.push(sky);
    window.clear();
    moon->x = 5.0F;
    moon->y = 3.0F;
    moon->draw();
  }

  TestWindow native{60, 60};
  xplWindow window{native.handle()};
  std::unique_ptr<cMoonSprite> moon;
};

TEST_F(MoonOnASky, LeavesTheSkyAroundItsDiscAlone) {
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) {
      const bool isMoon = x >= 5 && x < 55 && y >= 3 && y < 53 && isInDisc(x - 5, y - 3);
      const xplColor expected = isMoon ? moon->image()->getPixel(x - 5, y - 3) : sky;
      ASSERT_EQ(expected.value(), window.getPixel(x, y).value()) << x << ", " << y;
    }
  }
}

TEST_F(MoonOnASky, HidesTheSkyBehindItsDarkSide) {
  EXPECT_EQ(xplColor(0, 0, 60), window.getPixel(5 + 10, 3 + 25)) << "unlit";
  EXPECT_GT(window.getPixel(5 + 45, 3 + 25).red(), 100) << "lit";
}

}  // namespace
