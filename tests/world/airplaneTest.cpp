// How airplanes take their place, fly and blink.
#include <cmath>
#include <utility>
#include <vector>

#include "airplaneFixture.h"
#include "sprites/moveRestriction.h"
#include "support/random.h"

TEST_F(Airplanes, BeginDarkAndNowhere) {
  const cAirplane airplane;
  EXPECT_STREQ("Airplane", airplane.name());
  EXPECT_FALSE(airplane.isLightOn());
  EXPECT_FALSE(airplane.isPositioned());
  EXPECT_FLOAT_EQ(0.0F, airplane.x);
  EXPECT_FLOAT_EQ(0.0F, airplane.y);
}

TEST_F(Airplanes, AreOnePixelInSize) {
  cAirplane airplane;
  EXPECT_FALSE(airplane.sizeIsValid());
  airplane.calcSize();
  EXPECT_FLOAT_EQ(1.0F, airplane.width);
  EXPECT_FLOAT_EQ(1.0F, airplane.height);
  EXPECT_TRUE(airplane.sizeIsValid());
}

TEST_F(Airplanes, TakeTheirPlaceOnTheFirstUpdateWithAWindow) {
  makeWindow(640, 480);
  cAirplane airplane;
  airplane.speedX = 0.0F;
  airplane.speedY = 0.0F;
  const auto before = xplRandom::state();
  airplane.update(0.04F);
  EXPECT_FALSE(airplane.isPositioned());
  EXPECT_EQ(before, xplRandom::state());
  airplane.setRenderWindow(window.get());
  EXPECT_FALSE(airplane.isPositioned());
  airplane.update(0.0F);
  EXPECT_TRUE(airplane.isPositioned());
  xplRandom::seed(before);
  const float column = std::floor(xplRandom::unit() * 640.0F);
  const float row = std::floor(xplRandom::unit() * 480.0F);
  EXPECT_FLOAT_EQ(column, airplane.x);
  EXPECT_FLOAT_EQ(row, airplane.y);
  airplane.update(0.04F);
  EXPECT_FLOAT_EQ(column, airplane.x) << "once only";
}

TEST_F(Airplanes, MoveBySpeedAndTime) {
  cAirplane airplane;
  airplane.speedX = -20.0F;
  airplane.speedY = 4.0F;
  airplane.update(0.5F);
  EXPECT_FLOAT_EQ(-10.0F, airplane.x);
  EXPECT_FLOAT_EQ(2.0F, airplane.y);
  airplane.update(0.0F);
  EXPECT_FLOAT_EQ(-10.0F, airplane.x);
}

TEST_F(Airplanes, ComeBackOnTheOtherSideByTheirRestriction) {
  const xplRect<int> sky640(0, 0, 640, 480);
  TorvMoveRestriction_ContinueInsideRect restriction(&sky640);
  cAirplane airplane;
  airplane.addMoveRestriction(restriction);
  airplane.speedX = 20.0F;
  airplane.speedY = 0.0F;
  airplane.x = 639.0F;
  for (int i = 0; i < 9; ++i) {
    airplane.update(0.1F);
  }
  EXPECT_GT(airplane.x, 650.0F);
  airplane.update(0.1F);
  EXPECT_FLOAT_EQ(0.0F, airplane.x);
}

TEST_F(Airplanes, LightUpForTheLastFifthOfASecondOf2Point2Seconds) {
  cAirplane airplane;
  airplane.update(2.25F - airplane.lightClock());
  EXPECT_TRUE(airplane.isLightOn()) << "also on the step that ends the cycle";
  EXPECT_FLOAT_EQ(0.0F, airplane.lightClock());
  airplane.update(2.0F);
  EXPECT_FALSE(airplane.isLightOn()) << "not yet at 2.0";
  EXPECT_FLOAT_EQ(2.0F, airplane.lightClock());
  airplane.update(0.125F);
  EXPECT_TRUE(airplane.isLightOn());
  airplane.update(0.0F);
  EXPECT_TRUE(airplane.isLightOn());
  EXPECT_FLOAT_EQ(2.125F, airplane.lightClock());
  airplane.update(0.08F);
  EXPECT_FLOAT_EQ(0.0F, airplane.lightClock());
  airplane.update(0.04F);
  EXPECT_FALSE(airplane.isLightOn());
}

TEST_F(Airplanes, BlinkFiveOrSixFramesOutOf56) {
  cAirplane airplane;
  airplane.update(2.25F - airplane.lightClock());
  int lit = 0;
  for (int i = 0; i < 25 * 60; ++i) {
    airplane.update(0.04F);
    lit += airplane.isLightOn() ? 1 : 0;
  }
  EXPECT_GE(lit, 1500 * 5 / 56);
  EXPECT_LE(lit, 1500 * 6 / 55 + 6);
}

TEST_F(Airplanes, TakeTheirPlaceInWindowsOfAnySize) {
  for (const auto& [width, height] : std::vector<std::pair<int, int>>{{1, 1}, {1, 2000}, {64, 48}}) {
    makeWindow(width, height);
    for (int i = 0; i < 50; ++i) {
      cAirplane airplane;
      airplane.setRenderWindow(window.get());
      airplane.update(0.0F);
      ASSERT_GE(airplane.x, 0.0F);
      ASSERT_LT(airplane.x, static_cast<float>(width));
      ASSERT_GE(airplane.y, 0.0F);
      ASSERT_LT(airplane.y, static_cast<float>(height));
      airplane.draw();
    }
  }
}
