// How stars twinkle, and what the pictures of a star look like.
#include <memory>
#include <vector>

#include "harness/privateFolders.h"
#include "support/random.h"
#include "windowharness/testWindow.h"
#include "world/starWithPixels.h"

namespace {

class Stars : public PrivateFolders {
 protected:
  // A star of the normal kind with this base brightness.
  static std::unique_ptr<cStarSpriteWithPixels> makeStar(float brightness, float amplitude = 0.6F) {
    return std::make_unique<cStarSpriteWithPixels>(2.0F, "normal star", brightness, amplitude, 100.0F);
  }
};

TEST_F(Stars, BeginAtTheirBaseBrightnessWithinTheRanges) {
  for (int i = 0; i < 1000; ++i) {
    const auto star = makeStar(0.3F);
    ASSERT_FLOAT_EQ(0.3F, star->brightness());
    ASSERT_FLOAT_EQ(0.3F, star->baseBrightness());
    ASSERT_GE(star->twinkleDuration(), 1.4F);
    ASSERT_LT(star->twinkleDuration(), 2.6F);
    ASSERT_GE(star->restDuration(), 90.0F);
    ASSERT_LT(star->restDuration(), 110.0F);
    ASSERT_GE(star->phase(), 0.0F);
    ASSERT_LT(star->phase(), star->twinkleDuration() + star->restDuration());
  }
}

TEST_F(Stars, DrawThreeRandomNumbersEach) {
  xplRandom::seed(5);
  for (int i = 0; i < 3; ++i) {
    xplRandom::next();
  }
  const auto after = xplRandom::state();
  xplRandom::seed(5);
  const auto star = makeStar(0.3F);
  EXPECT_EQ(after, xplRandom::state());
}

TEST_F(Stars, ClampBrightnessAndAmplitude) {
  EXPECT_FLOAT_EQ(1.0F, makeStar(7.0F)->brightness());
  EXPECT_FLOAT_EQ(0.0F, makeStar(-1.0F)->brightness());
  EXPECT_FLOAT_EQ(1.0F, makeStar(0.1F, 3.0F)->twinkleAmplitude());
  const auto star = makeStar(0.1F);
  star->setBrightness(2.0F);
  EXPECT_FLOAT_EQ(1.0F, star->brightness());
}

TEST_F(Stars, FlareInATriangleAtTheStartOfTheCycle) {
  const auto star = makeStar(0.2F);
  const float d = star->twinkleDuration();
  const auto brightnessAt = [&](float phase) {
    star->setPhase(phase);
    star->update(0.0F);
    return star->brightness();
  };
  EXPECT_NEAR(0.2F, brightnessAt(0.0F), 1e-5F);
  EXPECT_NEAR(0.2F + 0.3F, brightnessAt(d / 4.0F), 1e-5F);
  EXPECT_NEAR(0.2F + 0.6F, brightnessAt(d / 2.0F), 1e-5F);
  EXPECT_NEAR(0.2F + 0.3F, brightnessAt(d * 0.75F), 1e-5F);
  EXPECT_FLOAT_EQ(0.2F, brightnessAt(d + 0.01F));
}

TEST_F(Stars, AtThePeakNeverExceedFullBrightness) {
  const auto star = makeStar(0.9F);
  star->setPhase(star->twinkleDuration() / 2.0F);
  star->update(0.0F);
  EXPECT_FLOAT_EQ(1.0F, star->brightness());
}

TEST_F(Stars, WrapThePhaseOverSeveralCyclesInOneStep) {
  const auto star = makeStar(0.2F);
  const float cycle = star->twinkleDuration() + star->restDuration();
  star->setPhase(1.0F);
  star->update(5.0F * cycle);
  EXPECT_NEAR(1.0F, star->phase(), 0.01F);
}

// The pixel of a star computed apart from the program, in whole steps of the rule.
xplColor expectedPixel(float brightness, int i, int j) {
  if (i + j >= 4) {
    return {0, 0, 0};
  }
  float v = (brightness - 0.25F * static_cast<float>(i)) * 255.0F * 7.0F / static_cast<float>(i + j + 1);
  const bool offAxis = i > 0 && j > 0;
  if (offAxis) {
    v = v * 0.5F / static_cast<float>(i + j);
  }
  const int c = v < 0.0F ? 0 : v > 255.0F ? 255 : static_cast<int>(v);
  const float blue = static_cast<float>(c) * (offAxis ? 4.0F : 1.4F);
  return {static_cast<std::uint8_t>(c), static_cast<std::uint8_t>(c),
          static_cast<std::uint8_t>(blue > 255.0F ? 255.0F : blue)};
}

TEST_F(Stars, PixelsOfKnownBrightnesses) {
  const auto star = makeStar(0.2F);
  TstarImageBinder::Quadrant pixels;
  star->makeStarPixels(1.0F, pixels);
  EXPECT_EQ(xplColor(255, 255, 255), pixels[0][0]);
  EXPECT_EQ(xplColor(0, 0, 0), pixels[2][2]);
  star->makeStarPixels(0.1F, pixels);
  EXPECT_EQ(xplColor(178, 178, 249), pixels[0][0]);
  EXPECT_EQ(xplColor(0, 0, 0), pixels[1][0]) << "below zero at a distance";
  star->makeStarPixels(0.3F, pixels);
  EXPECT_EQ(xplColor(44, 44, 61), pixels[1][0]);
  EXPECT_EQ(xplColor(7, 7, 28), pixels[1][1]);
}

TEST_F(Stars, PaletteMirrorsTheQuadrantInAllPictures) {
  TstarImageBinder binder(cStarSpriteWithPixels::starPixels);
  for (int k = 0; k < 100; ++k) {
    xplImage& image = binder.getImageOf(k);
    ASSERT_EQ(7, image.getWidth());
    ASSERT_EQ(7, image.getHeight());
    for (int y = 0; y < 7; ++y) {
      for (int x = 0; x < 7; ++x) {
        const int dx = std::abs(x - 3);
        const int dy = std::abs(y - 3);
        ASSERT_EQ(expectedPixel(static_cast<float>(k) / 100.0F, std::max(dx, dy), std::min(dx, dy)).value(),
                  image.getPixel(x, y).value())
            << k << ": " << x << ", " << y;
      }
    }
  }
  EXPECT_EQ(1, countEntries("cImageBinder initializing 100 images"));
}

TEST_F(Stars, PaletteAnswersWrongIndexesWithTheNearestPicture) {
  TstarImageBinder binder(cStarSpriteWithPixels::starPixels);
  EXPECT_EQ(&binder.getImageOf(99), &binder.getImageOf(100));
  EXPECT_EQ(&binder.getImageOf(0), &binder.getImageOf(-5));
  EXPECT_EQ(1, countEntries("getImageOf out of range>1 :100"));
  EXPECT_EQ(1, countEntries("getImageOf out of range>1 :-5"));
}

// What a star of this brightness leaves on a black window.
class DrawnStar {
 public:
  explicit DrawnStar(float brightness) {
    m_window.fillRect(xplRect<int>(0, 0, 20, 20), {0, 0, 0});
    cStarSpriteWithPixels star(2.0F, "normal star", brightness, 0.0F, 100.0F);
    star.setRenderWindow(&m_window);
    star.x = 5.9F;
    star.y = 6.2F;
    star.draw();
  }
  xplColor at(int x, int y) { return m_window.getPixel(x, y); }

 private:
  TestWindow m_native{20, 20};
  xplWindow m_window{m_native.handle()};
};

TEST_F(Stars, KeptPictureKIsPaintedForKHundredthsWhileAStarPicksIts99th) {
  // 0.5 * 99 = 49.5: picture 49, painted for 0.49, not for 0.5.
  DrawnStar drawn(0.5F);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      const int dx = std::abs(x - 8);
      const int dy = std::abs(y - 9);
      const xplColor expected =
          dx <= 3 && dy <= 3 ? expectedPixel(0.49F, std::max(dx, dy), std::min(dx, dy)) : xplColor(0, 0, 0);
      ASSERT_EQ(expected.value(), drawn.at(x, y).value()) << x << ", " << y;
    }
  }
}

TEST_F(Stars, OfBrightness0AreInvisible) {
  DrawnStar drawn(0.0F);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      ASSERT_EQ(xplColor(0, 0, 0).value(), drawn.at(x, y).value());
    }
  }
}

TEST_F(Stars, OfFullBrightnessHaveAWhiteMiddle) {
  DrawnStar drawn(1.0F);
  EXPECT_EQ(xplColor(255, 255, 255), drawn.at(8, 9));
}

TEST_F(Stars, MakeThePaletteWithTheFirstAndDestroyItWithTheLast) {
  for (int round = 1; round <= 2; ++round) {
    auto first = makeStar(0.1F);
    auto second = makeStar(0.1F);
    EXPECT_EQ(round, countEntries("First cStarSpriteWithPixels create. Will create cStarPalette\n"));
    EXPECT_EQ(round, countEntries("TstarImageBinder created"));
    first.reset();
    EXPECT_EQ(round - 1, countEntries("Last cStarSpriteWithPixels destroy. Destroyed cStarPalette\n"));
    second.reset();
    EXPECT_EQ(round, countEntries("Last cStarSpriteWithPixels destroy. Destroyed cStarPalette\n"));
  }
}

TEST_F(Stars, AreSevenPixelsWide) {
  const auto star = makeStar(0.1F);
  star->calcSize();
  EXPECT_FLOAT_EQ(7.0F, star->width);
  EXPECT_FLOAT_EQ(7.0F, star->height);
  EXPECT_TRUE(star->sizeIsValid());
}

}  // namespace
