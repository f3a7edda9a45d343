// The sky of a seed: the same stars in the same places, on every platform.
#include <bit>
#include <cstdint>
#include <string>

#include "worldFixture.h"

namespace {

// FNV-1a over 32-bit words.
class Hash {
 public:
  void add(std::uint32_t word) {
    for (int shift = 0; shift < 32; shift += 8) {
      m_value = (m_value ^ ((word >> shift) & 0xff)) * 0x100000001b3ULL;
    }
  }
  void add(float value) { add(std::bit_cast<std::uint32_t>(value)); }
  std::uint64_t value() const { return m_value; }

 private:
  std::uint64_t m_value = 0xcbf29ce484222325ULL;
};

std::uint64_t hashOfStars(const TnoctisWorld& world) {
  Hash hash;
  for (std::size_t i = 0; i < TnoctisWorld::starCount; ++i) {
    const auto& star = world.star(i);
    for (const float value : {star.x, star.y, star.speedX, star.speedY, star.brightness(), star.phase()}) {
      hash.add(value);
    }
  }
  return hash.value();
}

std::uint64_t hashOfPixels(xplWindow& window) {
  Hash hash;
  for (int y = 0; y < window.getHeight(); ++y) {
    for (int x = 0; x < window.getWidth(); ++x) {
      hash.add(window.getPixel(x, y).value());
    }
  }
  return hash.value();
}

class WorldOfASeed : public World {
 protected:
  // A world after so many steps, its last frame drawn.
  std::unique_ptr<TnoctisWorld> runWorld(std::uint32_t seed, int steps) {
    xplRandom::seed(seed);
    xplUserSettings().set("background", 0);
    leaveOnlyStars();
    auto world = makeWorld(160, 120);
    world->initializeWorld();
    for (int i = 0; i < steps; ++i) {
      world->update(0.04F);
    }
    world->draw();
    return world;
  }
};

// The two numbers were computed by a second program, written for this alone, in rounded single precision.
TEST_F(WorldOfASeed, StandsWhereItAlwaysStoodAfterAThousandSteps) {
  const auto world = runWorld(2016, 1000);
  EXPECT_EQ(0xf937bc43051fbc27ULL, hashOfStars(*world));
  EXPECT_EQ(0x784d4272b1713aafULL, hashOfPixels(*window));
}

TEST_F(WorldOfASeed, IsDrawnFromTheGeneratorInAKnownNumberOfSteps) {
  // Light, direction and speed of each airplane; brightness, pulse, rest and phase of each star and message
  // star; then the row, the column and the two speeds of each star; in the first update the column and the
  // row of each airplane.
  xplRandom::seed(7);
  constexpr std::size_t draws =
      TnoctisWorld::starCount * 8 + TnoctisWorld::msgStarCount * 4 + TnoctisWorld::airplaneCount * 5;
  for (std::size_t i = 0; i < draws; ++i) {
    xplRandom::next();
  }
  const std::uint32_t after = xplRandom::state();
  runWorld(7, 10);
  EXPECT_EQ(after, xplRandom::state());
}

TEST_F(WorldOfASeed, PlacesItsFirstStarFromTheNumbersInTheirOrder) {
  const auto world = runWorld(7, 0);
  xplRandom::seed(7);
  for (std::size_t i = 0; i < TnoctisWorld::airplaneCount * 3; ++i) {
    xplRandom::next();
  }
  EXPECT_FLOAT_EQ(xplRandom::between(0.05F, 0.4F), world->star(0).baseBrightness());
  EXPECT_FLOAT_EQ(xplRandom::between(1.4F, 2.6F), world->star(0).twinkleDuration());
  EXPECT_FLOAT_EQ(xplRandom::between(90.0F, 110.0F), world->star(0).restDuration());
  for (std::size_t i = 3; i < (TnoctisWorld::starCount + TnoctisWorld::msgStarCount) * 4; ++i) {
    xplRandom::next();
  }
  EXPECT_FLOAT_EQ(xplRandom::unit() * (120.0F - 7.0F), world->star(0).y);
  EXPECT_FLOAT_EQ(xplRandom::unit() * (160.0F - 7.0F), world->star(0).x);
  EXPECT_FLOAT_EQ(xplRandom::between(-0.2F, 0.2F), world->star(0).speedX);
  EXPECT_FLOAT_EQ(xplRandom::between(-0.2F, 0.2F), world->star(0).speedY);
}

TEST_F(WorldOfASeed, IsTheSameAgainAndAnotherForAnotherSeed) {
  const std::uint64_t first = hashOfStars(*runWorld(9, 100));
  EXPECT_EQ(first, hashOfStars(*runWorld(9, 100)));
  EXPECT_NE(first, hashOfStars(*runWorld(10, 100)));
}

TEST_F(WorldOfASeed, LooksTheSameWhereverTheWindowStands) {
  runWorld(9, 50);
  const std::uint64_t first = hashOfPixels(*window);
  xplRandom::seed(9);
  leaveOnlyStars();
  const auto world = makeWorld(160, 120, 60, 50);
  world->initializeWorld();
  for (int i = 0; i < 50; ++i) {
    world->update(0.04F);
  }
  world->draw();
  EXPECT_EQ(first, hashOfPixels(*window));
}

}  // namespace
