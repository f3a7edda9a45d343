// How the world places, moves and draws what is in it.
#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "worldFixture.h"

TEST_F(World, SpreadsTheStarsOverTheWindowAtSlowSpeeds) {
  const auto world = makeWorld();
  world->initializeWorld();
  float farthestRight = 0.0F;
  for (std::size_t i = 0; i < TnoctisWorld::starCount; ++i) {
    const auto& star = world->star(i);
    ASSERT_GE(star.left, 0.0F);
    ASSERT_LE(star.getRight(), 640.0);
    ASSERT_GE(star.top, 0.0F);
    ASSERT_LE(star.getBottom(), 480.0);
    ASSERT_LE(std::abs(star.speedX), 0.2F);
    ASSERT_LE(std::abs(star.speedY), 0.2F);
    farthestRight = std::max(farthestRight, star.left);
  }
  EXPECT_GT(farthestRight, 500.0F);
}

TEST_F(World, DrawsFromBackToFrontInThisOrder) {
  xplUserSettings().set("showQuotes_Wisdom", true);
  const auto world = makeWorld();
  world->initializeWorld();
  std::vector<std::string> runs;  // a name for each run of sprites that have it
  std::vector<std::size_t> lengths;
  for (const TorvSprite* sprite : world->spriteDirector().sprites()) {
    if (runs.empty() || runs.back() != sprite->name()) {
      runs.emplace_back(sprite->name());
      lengths.push_back(0);
    }
    ++lengths.back();
  }
  ASSERT_EQ(8U, runs.size());
  EXPECT_EQ((std::vector<std::string>{"normal star", "msg star", "moonSprite", "bottomLine", "moonInfoLabel",
                                      "quotesLabel", "Airplane"}),
            std::vector<std::string>(runs.begin() + 1, runs.end()));
  EXPECT_EQ((std::vector<std::size_t>{1, 200, 1500, 1, 1, 1, 1, 3}), lengths);
}

TEST_F(World, DrawsTheStarsOverTheBackground) {
  leaveOnlyStars();
  xplUserSettings().set("background", 0);
  const auto world = makeWorld(240, 180);
  world->initializeWorld();
  world->draw();
  int sky = 0;
  int light = 0;
  for (int y = 0; y < 180; ++y) {
    for (int x = 0; x < 240; ++x) {
      const xplColor color = window->getPixel(x, y);
      sky += color == xplColor(0, 0, 20) ? 1 : 0;
      light += color.red() > 60 ? 1 : 0;
    }
  }
  EXPECT_GT(light, 150);
  EXPECT_GT(sky, 240 * 180 - 200 * 49);
  window->flush();
  EXPECT_EQ(xplColor(0, 0, 20), native->shownPixel(0, 179));
}

TEST_F(World, MovesNoStarFurtherThanItsSpeedAllows) {
  const auto world = makeWorld();
  world->initializeWorld();
  const float before = world->star(0).x;
  world->update(0.04F);
  EXPECT_FLOAT_EQ(before + world->star(0).speedX * 0.04F, world->star(0).x);
}

TEST_F(World, FliesThreeAirplanesThatComeBackOnTheOtherSide) {
  xplRandom::seed(3);
  const auto world = makeWorld(64, 48);
  world->initializeWorld();
  for (std::size_t i = 0; i < TnoctisWorld::airplaneCount; ++i) {
    EXPECT_FALSE(world->airplane(i).isPositioned());
  }
  for (int i = 0; i < 2000; ++i) {
    world->update(0.04F);
    for (std::size_t k = 0; k < TnoctisWorld::airplaneCount; ++k) {
      const auto& airplane = world->airplane(k);
      ASSERT_TRUE(airplane.isPositioned());
      // Looked at on every tenth move, at less than a pixel a move.
      ASSERT_GT(airplane.x, -11.0F);
      ASSERT_LT(airplane.x, 64.0F + 11.0F);
      ASSERT_GT(airplane.y, -11.0F);
      ASSERT_LT(airplane.y, 48.0F + 11.0F);
    }
  }
}

TEST_F(World, DrawsTheAirplanesOverTheStars) {
  xplRandom::seed(3);
  const auto world = makeWorld(64, 48);
  world->initializeWorld();
  world->update(0.04F);
  world->draw();
  for (std::size_t i = 0; i < TnoctisWorld::airplaneCount; ++i) {
    const auto& airplane = world->airplane(i);
    const xplColor expected = airplane.isLightOn() ? xplColor(255, 0, 0) : xplColor(192, 192, 192);
    EXPECT_EQ(expected, window->getPixel(static_cast<int>(airplane.x), static_cast<int>(airplane.y)));
  }
}

// Long enough for two messages.
TEST_F(World, SurvivesWindowsOfAllSizes) {
  for (const auto& [width, height] :
       std::vector<std::pair<int, int>>{{1, 1}, {1, 2000}, {64, 48}, {900, 2}}) {
    const auto world = makeWorld(width, height);
    world->initializeWorld();
    for (int i = 0; i < 60 * 25; ++i) {
      world->update(0.04F);
      if (i % 50 == 0) {
        world->draw();
      }
    }
    EXPECT_NE(nullptr, world->msgStarDirector().transition()) << width << " x " << height;
  }
}
