// The moon's picture: which is loaded, how it is darkened once, and that it leaves the sky around it alone.
#include <memory>

#include "moon/moonFixture.h"
#include "moon/moonShading.h"
#include "moon/moonSprite.h"
#include "windowharness/testWindow.h"

namespace {

constexpr std::int64_t momentOfTheFirstMoon = 1486144800;  // 271 degrees
constexpr int phaseOfTheFirstMoon = 271;

// A sprite of this moment with a picture of one colour and this size.
std::unique_ptr<cMoonSprite> paintedMoon(int size, xplColor color) {
  auto moon = std::make_unique<cMoonSprite>();
  moon->image()->initWithSizeAndColor(size, size, color);
  moon->calcSize();
  return moon;
}

// Every test here begins in a process in which one moon was illuminated, always at the same moment.
class MoonSprite : public MoonTest {
 protected:
  void SetUp() override {
    MoonTest::SetUp();
    clock.set({momentOfTheFirstMoon, 0});
    paintedMoon(2, {0, 0, 0})->illuminate();
  }
};

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

}  // namespace
