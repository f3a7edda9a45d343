// How airplanes fly, blink and are drawn.
#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "harness/privateFolders.h"
#include "sprites/moveRestriction.h"
#include "support/random.h"
#include "windowharness/testWindow.h"
#include "world/airplane.h"

namespace {

constexpr xplColor sky(0, 0, 20);
constexpr xplColor grey(192, 192, 192);
constexpr xplColor red(255, 0, 0);

class Airplanes : public PrivateFolders {
 protected:
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

TEST_F(Airplanes, AreTwoGreyPixelsWhileTheLightIsOff) {
  makeWindow(12, 9);
  makeAirplaneAt(5.9F, 3.9F, false)->draw();
  expectOnly({{5, 3}, {6, 3}}, grey);
}

TEST_F(Airplanes, AreASmallRedRectangleWhileTheLightIsOn) {
  makeWindow(12, 9);
  makeAirplaneAt(5.9F, 3.9F, true)->draw();
  expectOnly({{4, 2}, {5, 2}, {6, 2}, {4, 3}, {5, 3}, {6, 3}}, red);
}

TEST_F(Airplanes, AreCutOffAtTheEdges) {
  makeWindow(6, 5);
  makeAirplaneAt(5.0F, 4.0F, false)->draw();
  expectOnly({{5, 4}}, grey);
  makeWindow(6, 5);
  makeAirplaneAt(-1.0F, 0.0F, false)->draw();
  expectOnly({{0, 0}}, grey);
  makeWindow(6, 5);
  makeAirplaneAt(0.0F, 0.0F, true)->draw();
  expectOnly({{0, 0}, {1, 0}}, red);
  makeWindow(6, 5);
  makeAirplaneAt(6.0F, 5.0F, true)->draw();
  expectOnly({{5, 4}}, red);
  makeWindow(6, 5);
  makeAirplaneAt(8.0F, 2.0F, true)->draw();
  makeAirplaneAt(2.0F, -2.0F, false)->draw();
  expectOnly({}, red);
}

TEST_F(Airplanes, DrawNothingWithoutAWindow) {
  cAirplane airplane;
  airplane.draw();
  EXPECT_EQ(nullptr, airplane.renderWindow());
}

TEST_F(Airplanes, SurvivePlacesFarBeyondAnyScreen) {
  makeWindow(6, 5);
  const float endless = std::numeric_limits<float>::infinity();
  for (const bool lightOn : {false, true}) {
    makeAirplaneAt(endless, endless, lightOn)->draw();
    makeAirplaneAt(-endless, -endless, lightOn)->draw();
    makeAirplaneAt(2147483520.0F, 0.0F, lightOn)->draw();
    makeAirplaneAt(-2147483648.0F, 0.0F, lightOn)->draw();
  }
  expectOnly({}, red);
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

}  // namespace
