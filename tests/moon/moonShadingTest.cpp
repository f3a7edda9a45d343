// How bright the pixels of the moon are.
#include <bit>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "moon/moonShading.h"

namespace {

// A hash of the brightness of every pixel at phases in [first, 360), `step` apart.
std::uint64_t hashOf(int size, int first, int step) {
  std::uint64_t hash = 14695981039346656037U;
  for (int phase = first; phase < 360; phase += step) {
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        hash ^= std::bit_cast<std::uint32_t>(moonPixelIllumination(x, y, static_cast<float>(size), phase));
        hash *= 1099511628211U;
      }
    }
  }
  return hash;
}

int litPixels(int size, int phase) {
  int count = 0;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      count += moonPixelIllumination(x, y, static_cast<float>(size), phase) > 0.0F ? 1 : 0;
    }
  }
  return count;
}

bool isInDisc(int x, int y, int size) {
  const int radius = size / 2;
  return (x - radius) * (x - radius) + (y - radius) * (y - radius) <= radius * radius;
}

int discPixels(int size) {
  int count = 0;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      count += isInDisc(x, y, size) ? 1 : 0;
    }
  }
  return count;
}

// Computed by reference/shading.py with 60 digits. For these four sizes no result of acos lies closer
// than 2.8e-6 degrees to a whole one, where truncation would change, and no result of cos closer than 300,000
// units in the last place to where rounding to float would: libraries that are right to a few units cannot
// differ.
TEST(MoonPixelIllumination, IsTheSameOnEveryPlatform) {
  EXPECT_EQ(17207089957928954273U, hashOf(50, 0, 1));
  EXPECT_EQ(11033450507067044338U, hashOf(100, 0, 7));
  EXPECT_EQ(4613487179669954228U, hashOf(200, -359, 60));
  EXPECT_EQ(4417904727855939975U, hashOf(300, 3, 45));
}

// Computed by another program with 60 digits.
TEST(MoonPixelIllumination, IsAsComputedElsewhere) {
  const struct {
    int size, phase, x, y;
    float factor;
  } pixels[] = {
      {300, 0, 150, 150, 1.0F},          {300, 0, 0, 150, 0.508564532F},
      {300, 0, 299, 150, 0.623214364F},  {300, 0, 150, 0, 1.0F},
      {300, 90, 75, 150, 0.852675855F},  {300, 90, 148, 150, 0.472930938F},
      {300, 90, 150, 150, 0.472930938F}, {300, 90, 152, 150, 0.426675856F},
      {300, 90, 225, 150, 0.0F},         {300, 270, 225, 150, 0.852675855F},
      {300, 270, 75, 150, 0.0F},         {200, 45, 60, 120, 0.984047711F},
      {200, 320, 13, 77, 0.0F},          {100, 135, 20, 50, 0.0F},
      {100, 225, 80, 50, 0.0F},          {50, 1, 25, 25, 0.999964297F},
      {50, 359, 49, 25, 0.758467853F},   {50, -77, 40, 20, 0.942954183F},
  };
  for (const auto& pixel : pixels) {
    EXPECT_EQ(pixel.factor,
              moonPixelIllumination(pixel.x, pixel.y, static_cast<float>(pixel.size), pixel.phase))
        << pixel.size << " pixels at " << pixel.phase << ": " << pixel.x << ", " << pixel.y;
  }
}

TEST(MoonPixelIllumination, OnTheCircleIsInside) {
  EXPECT_GT(moonPixelIllumination(0, 150, 300.0F, 0), 0.0F);
  EXPECT_GT(moonPixelIllumination(150, 0, 300.0F, 0), 0.0F);
  EXPECT_GT(moonPixelIllumination(150 - 90, 150 - 120, 300.0F, 0), 0.0F) << "90 and 120 make 150";
  EXPECT_EQ(0.0F, moonPixelIllumination(150 - 90, 150 - 121, 300.0F, 0));
}

TEST(MoonPixelIllumination, OutsideTheDiscIsNone) {
  for (int phase = 0; phase < 360; phase += 30) {
    for (int y = -2; y < 52; ++y) {
      for (int x = -2; x < 52; ++x) {
        if (!isInDisc(x, y, 50)) {
          ASSERT_EQ(0.0F, moonPixelIllumination(x, y, 50.0F, phase)) << x << ", " << y;
        }
      }
    }
  }
}

TEST(MoonPixelIllumination, FarOutsideIsNone) {
  constexpr int least = std::numeric_limits<int>::min();
  constexpr int most = std::numeric_limits<int>::max();
  for (const int x : {least, 25, most}) {
    for (const int y : {least, most}) {
      EXPECT_EQ(0.0F, moonPixelIllumination(x, y, 50.0F, 0));
      EXPECT_EQ(0.0F, moonPixelIllumination(y, x, 50.0F, 0));
    }
  }
}

TEST(MoonPixelIllumination, OfAMoonWithoutSizeIsThatOfOnePixel) {
  EXPECT_EQ(1.0F, moonPixelIllumination(0, 0, 0.0F, 0));
  EXPECT_EQ(0.0F, moonPixelIllumination(1, 0, 0.0F, 0));
}

TEST(MoonPixelIllumination, AtFullMoonTheWholeDiscIsLit) {
  for (const int size : {50, 100, 200, 300}) {
    EXPECT_EQ(discPixels(size), litPixels(size, 0)) << size;
  }
}

TEST(MoonPixelIllumination, AtTheQuartersHalfTheDiscIsLit) {
  for (const int phase : {90, 270}) {
    const double part = static_cast<double>(litPixels(300, phase)) / discPixels(300);
    EXPECT_NEAR(0.5, part, 0.03) << phase;
  }
  EXPECT_GT(moonPixelIllumination(20, 150, 300.0F, 90), 0.8F) << "waning: lit on the left";
  EXPECT_EQ(0.0F, moonPixelIllumination(280, 150, 300.0F, 90));
  EXPECT_GT(moonPixelIllumination(280, 150, 300.0F, 270), 0.8F) << "waxing: lit on the right";
  EXPECT_EQ(0.0F, moonPixelIllumination(20, 150, 300.0F, 270));
}

// The two constants are not pi, so that the outermost pixels of the left limb, one in a row of some rows,
// stay lit where the true ones would leave all dark.
TEST(MoonPixelIllumination, KeptSliverOfLimbAtNewMoon) {
  EXPECT_EQ(0.426675856F, moonPixelIllumination(0, 150, 300.0F, 180));
  EXPECT_EQ(0.0F, moonPixelIllumination(1, 150, 300.0F, 180));
  EXPECT_EQ(0.0F, moonPixelIllumination(299, 150, 300.0F, 180));
  EXPECT_EQ(9, litPixels(50, 180));
  EXPECT_EQ(11, litPixels(100, 180));
  EXPECT_EQ(17, litPixels(200, 180));
  EXPECT_EQ(23, litPixels(300, 180));
}

// At 90 degrees the light ends right of the middle: true constants would end it at the middle itself.
TEST(MoonPixelIllumination, KeptPlaceOfTheEdgeOfTheLight) {
  int darkFrom = 0;
  while (moonPixelIllumination(darkFrom, 150, 300.0F, 90) > 0.0F) {
    ++darkFrom;
  }
  EXPECT_EQ(156, darkFrom);
}

TEST(MoonPixelIllumination, LitPartWanesAndThenWaxes) {
  for (int phase = 10; phase <= 170; phase += 10) {
    EXPECT_LT(litPixels(100, phase), litPixels(100, phase - 10)) << phase;
  }
  for (int phase = 190; phase < 360; phase += 10) {
    EXPECT_GT(litPixels(100, phase), litPixels(100, phase - 10)) << phase;
  }
}

}  // namespace
