// Where airplanes fly to.
#include <bit>
#include <cmath>
#include <cstdint>
#include <memory>

#include "harness/privateFolders.h"
#include "support/random.h"
#include "world/airplane.h"

namespace {

class AirplaneDirections : public PrivateFolders {};

TEST_F(AirplaneDirections, AreDrawnAfterTheLightAndBeforeTheSpeed) {
  xplRandom::seed(1);
  const float light = xplRandom::between(0.0F, 2.0F);
  const double draw = xplRandom::unit();
  const float speed = xplRandom::between(16.0F, 24.0F);
  const auto after = xplRandom::state();
  xplRandom::seed(1);
  const cAirplane airplane;
  EXPECT_EQ(after, xplRandom::state());
  EXPECT_FLOAT_EQ(light, airplane.lightClock());
  EXPECT_NEAR(speed, std::hypot(airplane.speedX, airplane.speedY), 1e-5);
  ASSERT_TRUE(draw < 0.125 || (draw > 0.375 && draw < 0.625) || draw > 0.875) << "another seed is needed";
  EXPECT_FLOAT_EQ(static_cast<float>(std::cos(draw * 6.28)) * speed, airplane.speedX);
  EXPECT_FLOAT_EQ(static_cast<float>(std::sin(draw * 6.28)) * speed, airplane.speedY);
}

TEST_F(AirplaneDirections, NeverLieWithin45DegreesOfTheVertical) {
  // 45 degrees, and the twentieth of a degree by which 3.14 falls short of pi over a turn.
  const double steepest = std::tan((45.0 + 0.2) * 3.14159265358979 / 180.0);
  int left = 0;
  int up = 0;
  for (std::uint32_t seed = 0; seed < 10000; ++seed) {
    xplRandom::seed(seed * 7919U);
    const cAirplane airplane;
    ASSERT_LE(std::abs(airplane.speedY), steepest * std::abs(airplane.speedX)) << "seed " << seed * 7919U;
    const double speed = std::hypot(airplane.speedX, airplane.speedY);
    ASSERT_GE(speed, 16.0 - 1e-5);
    ASSERT_LT(speed, 24.0 + 1e-5);
    ASSERT_GE(airplane.lightClock(), 0.0F);
    ASSERT_LT(airplane.lightClock(), 2.0F);
    left += airplane.speedX < 0.0F ? 1 : 0;
    up += airplane.speedY < 0.0F ? 1 : 0;
  }
  EXPECT_NEAR(5000, left, 300);
  EXPECT_NEAR(5000, up, 300);
}

// The number was computed by a second program, written for this alone.
TEST_F(AirplaneDirections, AreTheSameOnAllPlatforms) {
  std::uint64_t hash = 0xcbf29ce484222325ULL;  // FNV-1a over words
  for (std::uint32_t seed = 0; seed < 10000; ++seed) {
    xplRandom::seed(seed * 7919U);
    const cAirplane airplane;
    for (const float value : {airplane.speedX, airplane.speedY, airplane.lightClock()}) {
      hash = (hash ^ std::bit_cast<std::uint32_t>(value)) * 0x100000001b3ULL;
    }
  }
  EXPECT_EQ(0xcd7db77475f98d4aULL, hash);
}

// An airplane whose direction is drawn as `draw` / 32768.
std::unique_ptr<cAirplane> makeAirplaneOfDirection(int draw) {
  for (std::uint32_t seed = 0;; ++seed) {
    xplRandom::seed(seed);
    xplRandom::next();  // the light
    if (xplRandom::next() == draw) {
      xplRandom::seed(seed);
      return std::make_unique<cAirplane>();
    }
  }
}

double angleOf(const cAirplane& airplane) {
  return std::atan2(airplane.speedY, airplane.speedX);
}

TEST_F(AirplaneDirections, KeptBordersOfTheSteepOnesAreFlat) {
  constexpr double pi = 3.14159265358979;
  EXPECT_NEAR(0.785, angleOf(*makeAirplaneOfDirection(4096)), 1e-6);
  EXPECT_NEAR(2.355, angleOf(*makeAirplaneOfDirection(12288)), 1e-6);
  EXPECT_NEAR(3.925 - 2 * pi, angleOf(*makeAirplaneOfDirection(20480)), 1e-6);
  EXPECT_NEAR(5.495 - 2 * pi, angleOf(*makeAirplaneOfDirection(28672)), 1e-6);
}

TEST_F(AirplaneDirections, KeptASteepOneIsTurnedByHalfOf3Point14) {
  constexpr double step = 6.28 / 32768;
  EXPECT_NEAR(0.785 - step, angleOf(*makeAirplaneOfDirection(4095)), 1e-6);
  EXPECT_NEAR(0.785 + step - 1.57, angleOf(*makeAirplaneOfDirection(4097)), 1e-6);
  EXPECT_NEAR(0.0, angleOf(*makeAirplaneOfDirection(8192)), 1e-6);
  EXPECT_NEAR(2.355 - step - 1.57, angleOf(*makeAirplaneOfDirection(12287)), 1e-6);
  EXPECT_NEAR(2.355 + step, angleOf(*makeAirplaneOfDirection(12289)), 1e-6);
  EXPECT_NEAR(3.925 + step - 1.57, angleOf(*makeAirplaneOfDirection(20481)), 1e-6);
}

}  // namespace
