// How stars twinkle.
#include <limits>
#include <memory>

#include "harness/privateFolders.h"
#include "support/random.h"
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
  const auto first =
      makeStar(0.3F);  // keeps the palette, which would be painted anew for each star that is alone
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

TEST_F(Stars, AtTheEndOfTheCycleRestOnceMore) {
  const auto star = makeStar(0.2F);
  const float cycle = star->twinkleDuration() + star->restDuration();
  star->setPhase(cycle);
  star->update(0.0F);
  EXPECT_FLOAT_EQ(cycle, star->phase()) << "the cycle's end belongs to it";
  EXPECT_FLOAT_EQ(0.2F, star->brightness());
  star->update(1.0F);
  EXPECT_NEAR(1.0F, star->phase(), 1e-4F);
  EXPECT_GT(star->brightness(), 0.2F);
}

TEST_F(Stars, MoveAndTwinkleInOneUpdate) {
  const auto star = makeStar(0.2F);
  star->setPhase(0.0F);
  star->speedX = 2.0F;
  star->update(0.25F);
  EXPECT_FLOAT_EQ(0.5F, star->x);
  EXPECT_FLOAT_EQ(0.25F, star->phase());
  EXPECT_GT(star->brightness(), 0.2F);
}

// Counts how often its brightness is set.
class CountingStar : public cTwinkleStarSprite {
 public:
  CountingStar() : cTwinkleStarSprite(2.0F, "counting star", 0.2F, 0.6F, 100.0F) {}
  void draw() override {}
  void calcSize() override {}
  void setBrightness(float brightness) override {
    ++changes;
    cTwinkleStarSprite::setBrightness(brightness);
  }
  int changes = 0;
};

TEST_F(Stars, SetTheirBrightnessOnlyWhenItChanges) {
  CountingStar star;
  star.setPhase(star.twinkleDuration() + 1.0F);
  for (int i = 0; i < 100; ++i) {
    star.update(0.04F);
  }
  EXPECT_EQ(0, star.changes) << "it rests";
  star.setPhase(0.1F);
  for (int i = 0; i < 10; ++i) {
    star.update(0.04F);
  }
  EXPECT_EQ(10, star.changes) << "it flares up";
}

TEST_F(Stars, SurviveAStepWithoutEnd) {
  const auto star = makeStar(0.2F);
  star->update(std::numeric_limits<float>::infinity());
  EXPECT_FLOAT_EQ(0.2F, star->brightness());
}

}  // namespace
