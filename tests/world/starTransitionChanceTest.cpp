// What chance decides about a transition: its kind, the drifts and the times of the flights.
#include <algorithm>
#include <map>

#include "starTransitionFixture.h"

TEST_F(StarTransition, LetsStarsDriftByMinus50To49PixelsOverTenThousandDraws) {
  xplRandom::seed(2);
  std::map<int, int> drifts;
  for (int round = 0; round < 7; ++round) {
    for (const auto& star : stars) {
      star->isVisible = false;
    }
    start<cStarTransitionEffect_Fall>(1500);
    for (const auto& star : stars) {
      ++drifts[static_cast<int>(star->x) - star->targetX];
    }
  }
  EXPECT_EQ(100U, drifts.size()) << "each whole pixel";
  EXPECT_EQ(-50, drifts.begin()->first);
  EXPECT_EQ(49, drifts.rbegin()->first);
  for (const auto& [drift, count] : drifts) {
    EXPECT_NEAR(105, count, 55) << drift;
  }
}

TEST_F(StarTransition, DrawsADriftForEachStarThatLeaves) {
  start<cStarTransitionEffect_Simple>(3);
  runFor(21);
  xplRandom::seed(9);
  start<cStarTransitionEffect_Fall>(0);
  xplRandom::seed(9);
  for (int i = 0; i < 3; ++i) {
    const float share = xplRandom::unit();
    EXPECT_EQ(100 + 10 * i - 50 + static_cast<int>(share * 100.0F),
              stars[static_cast<std::size_t>(i)]->targetX);
  }
}

TEST_F(StarTransition, SchedulesEveryFlightWithinItsLimitsOverTenThousandStars) {
  xplRandom::seed(4);
  double sumOfStarts = 0.0;
  int flights = 0;
  double sumOfShares = 0.0;
  float smallestShare = 1.0F;
  float latestStart = 0.0F;
  float latestEnd = 0.0F;
  for (int round = 0; round < 7; ++round) {
    start<cStarTransitionEffect_Fall>(1500);
    for (const auto& star : stars) {
      const float t1 = star->startMovingAtTime();
      const float t2 = star->endMovingAtTime();
      ASSERT_GE(t1, 0.0F);
      ASSERT_LT(t1, 10.0F);
      ASSERT_GE(t2, t1 + 0.399F * (20.0F - t1));
      ASSERT_LE(t2, 20.0F);
      sumOfStarts += static_cast<double>(t1);
      const float share = (t2 - t1) / (20.0F - t1);
      sumOfShares += static_cast<double>(share);
      smallestShare = std::min(smallestShare, share);
      latestStart = std::max(latestStart, t1);
      latestEnd = std::max(latestEnd, t2);
      ++flights;
    }
  }
  EXPECT_EQ(10500, flights);
  EXPECT_NEAR(5.0, sumOfStarts / flights, 0.1);
  EXPECT_NEAR(0.7, sumOfShares / flights, 0.01);
  EXPECT_LT(smallestShare, 0.401F);
  EXPECT_GT(latestStart, 9.99F);
  EXPECT_GT(latestEnd, 19.9F);
}

TEST_F(StarTransition, KeptItDrawsNoMoreOnceAStarIsNeitherShownNorNeeded) {
  start<cStarTransitionEffect_Simple>(2);
  xplRandom::seed(11);
  start<cStarTransitionEffect_Simple>(3);
  const std::uint32_t after = xplRandom::state();
  xplRandom::seed(11);
  for (int i = 0; i < 3 * 2; ++i) {
    xplRandom::next();
  }
  EXPECT_EQ(xplRandom::state(), after) << "two draws for each star before it";
  EXPECT_FALSE(stars[3]->movingStarted());
  EXPECT_FLOAT_EQ(1.0F, stars[3]->endMovingAtTime()) << "as it was made";
}

TEST_F(StarTransition, DrawsTheDriftsBeforeTheSchedules) {
  xplRandom::seed(5);
  start<cStarTransitionEffect_Fall>(2);
  xplRandom::seed(5);
  for (std::size_t i = 0; i < 2; ++i) {
    const float share = xplRandom::unit();
    EXPECT_FLOAT_EQ(static_cast<float>(stars[i]->targetX - 50 + static_cast<int>(share * 100.0F)),
                    stars[i]->x);
  }
  EXPECT_FLOAT_EQ(xplRandom::unit() * 10.0F, stars[0]->startMovingAtTime());
}

TEST_F(StarTransition, RunsForTwentySecondsOfItsClock) {
  cStarTransitionEffect_Simple effect(screen, stars);
  EXPECT_FALSE(effect.isRunning());
  effect.startTransition(row(3));
  EXPECT_TRUE(effect.isRunning());
  EXPECT_FLOAT_EQ(0.0F, effect.elapsed());
  effect.advance(19.99F);
  EXPECT_TRUE(effect.isRunning());
  effect.advance(0.25F);
  EXPECT_FALSE(effect.isRunning());
  EXPECT_FLOAT_EQ(20.24F, effect.elapsed());
  effect.startTransition(row(3));
  EXPECT_TRUE(effect.isRunning()) << "a start begins anew";
  EXPECT_FLOAT_EQ(0.0F, effect.elapsed());
}

TEST_F(StarTransition, IsOneOfTwoKindsEachAsLikely) {
  xplRandom::seed(1);
  int simple = 0;
  for (int i = 0; i < 10000; ++i) {
    const auto effect = newTransitionEffect(screen, stars);
    simple += dynamic_cast<cStarTransitionEffect_Simple*>(effect.get()) != nullptr ? 1 : 0;
    ASSERT_NE(nullptr, effect);
  }
  EXPECT_NEAR(5000, simple, 150);
}

TEST_F(StarTransition, TakesItsKindFromOneDraw) {
  for (const std::uint32_t seed : {1U, 2U, 3U, 4U, 5U, 6U}) {
    xplRandom::seed(seed);
    const float share = xplRandom::unit();
    const std::uint32_t after = xplRandom::state();
    xplRandom::seed(seed);
    const auto effect = newTransitionEffect(screen, stars);
    EXPECT_EQ(after, xplRandom::state());
    EXPECT_EQ(static_cast<int>(share * 1000.0F) % 2 == 0,
              dynamic_cast<cStarTransitionEffect_Simple*>(effect.get()) != nullptr);
  }
}
