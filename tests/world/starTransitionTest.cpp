// How message stars are sorted, sent and scheduled when a message follows another.
#include <algorithm>
#include <map>
#include <vector>

#include "support/assertion.h"
#include "world/starTransitionKinds.h"
#include "worldFixture.h"

namespace {

const xplRect<int> screen(0, 0, 640, 480);

class StarTransition : public World {
 protected:
  StarTransition() {
    for (std::size_t i = 0; i < TnoctisWorld::msgStarCount; ++i) {
      stars.push_back(std::make_unique<cMsgStar>(2.5F, 0.4F, 0.5F, 30.0F));
    }
  }

  // Points in a row, ten pixels apart, from (100, 200) on.
  static std::vector<sTargetPoint> row(int count) {
    std::vector<sTargetPoint> points;
    for (int i = 0; i < count; ++i) {
      points.push_back({100 + 10 * i, 200});
    }
    return points;
  }

  template <class Effect>
  void start(int points) {
    Effect(screen, stars).startTransition(row(points));
  }
  void runFor(int seconds) {
    for (int i = 0; i < 25 * seconds; ++i) {
      for (const auto& star : stars) {
        star->update(0.04F);
      }
    }
  }
  int countVisible() const {
    return static_cast<int>(
        std::count_if(stars.begin(), stars.end(), [](const auto& star) { return star->isVisible; }));
  }

  std::vector<std::unique_ptr<cMsgStar>> stars;
};

TEST_F(StarTransition, OfTheFirstMessageBringsStarsFromTheCorner) {
  start<cStarTransitionEffect_Simple>(5);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_TRUE(stars[i]->isVisible);
    EXPECT_TRUE(stars[i]->visibleAfterArrival);
    EXPECT_FLOAT_EQ(-3.0F, stars[i]->x);
    EXPECT_FLOAT_EQ(-3.0F, stars[i]->y);
    EXPECT_EQ(100 + 10 * static_cast<int>(i), stars[i]->targetX);
    EXPECT_EQ(200, stars[i]->targetY);
  }
  EXPECT_EQ(5, countVisible());
  EXPECT_FLOAT_EQ(-3.0F, stars[5]->x);
  EXPECT_FALSE(stars[5]->visibleAfterArrival);
  EXPECT_EQ(1, countEntries("number of message star by usage: su_YY=0, su_YN=0, su_NY=5, su_NN=1495"));
  EXPECT_EQ(1, countEntries("Transition started"));
}

TEST_F(StarTransition, OfTheFirstMessageLetsStarsFallFromAboveTheirPoints) {
  start<cStarTransitionEffect_Fall>(200);
  float least = 1000.0F;
  float most = -1000.0F;
  for (std::size_t i = 0; i < 200; ++i) {
    EXPECT_FLOAT_EQ(-5.0F, stars[i]->y);
    const float drift = stars[i]->x - static_cast<float>(stars[i]->targetX);
    least = std::min(least, drift);
    most = std::max(most, drift);
  }
  EXPECT_GE(least, -50.0F);
  EXPECT_LE(most, 49.0F);
  EXPECT_LT(least, -40.0F);
  EXPECT_GT(most, 40.0F);
  EXPECT_FLOAT_EQ(0.0F, stars[200]->y) << "nobody touches those that are not needed";
}

TEST_F(StarTransition, LetsEveryStarArriveWithinItsDuration) {
  start<cStarTransitionEffect_Fall>(1500);
  runFor(21);
  for (std::size_t i = 0; i < stars.size(); ++i) {
    ASSERT_TRUE(stars[i]->arrived());
    ASSERT_FLOAT_EQ(static_cast<float>(100 + 10 * static_cast<int>(i)), stars[i]->x);
    ASSERT_FLOAT_EQ(200.0F, stars[i]->y);
  }
}

TEST_F(StarTransition, SendsTheSurplusIntoTheCornerWhereItVanishes) {
  start<cStarTransitionEffect_Simple>(10);
  runFor(21);
  start<cStarTransitionEffect_Simple>(4);
  EXPECT_EQ(1, countEntries("number of message star by usage: su_YY=4, su_YN=6, su_NY=0, su_NN=1490"));
  EXPECT_FLOAT_EQ(100.0F, stars[0]->x) << "those that stay fly from where they stand";
  EXPECT_EQ(-3, stars[4]->targetX);
  EXPECT_EQ(-3, stars[9]->targetY);
  EXPECT_EQ(10, countVisible());
  runFor(21);
  EXPECT_EQ(4, countVisible());
}

TEST_F(StarTransition, LetsTheSurplusFallOutBelowTheWindow) {
  start<cStarTransitionEffect_Simple>(10);
  runFor(21);
  start<cStarTransitionEffect_Fall>(4);
  for (std::size_t i = 4; i < 10; ++i) {
    EXPECT_EQ(483, stars[i]->targetY);
    const int drift = stars[i]->targetX - (100 + 10 * static_cast<int>(i));
    EXPECT_GE(drift, -50);
    EXPECT_LE(drift, 49);
    EXPECT_FALSE(stars[i]->visibleAfterArrival);
  }
  runFor(21);
  EXPECT_EQ(4, countVisible());
}

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

TEST_F(StarTransition, ToMorePointsKeepsThoseThatShowAndBringsTheRest) {
  start<cStarTransitionEffect_Simple>(3);
  runFor(21);
  start<cStarTransitionEffect_Simple>(5);
  EXPECT_EQ(1, countEntries("number of message star by usage: su_YY=3, su_YN=0, su_NY=2, su_NN=1495"));
  EXPECT_FLOAT_EQ(120.0F, stars[2]->x);
  EXPECT_FLOAT_EQ(-3.0F, stars[3]->x);
}

TEST_F(StarTransition, ToNoPointsSendsAllAway) {
  start<cStarTransitionEffect_Simple>(30);
  runFor(21);
  start<cStarTransitionEffect_Fall>(0);
  runFor(21);
  EXPECT_EQ(0, countVisible());
}

TEST_F(StarTransition, KeptTheLowerRightOfALongTextIsCutOff) {
  start<cStarTransitionEffect_Simple>(4000);
  EXPECT_EQ(1500, countVisible());
  EXPECT_EQ(100, stars[0]->targetX);
  EXPECT_EQ(100 + 14990, stars[1499]->targetX) << "the first points, all of them";
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

TEST_F(StarTransition, WithoutStarsIsReportedAndStartsAllTheSame) {
  cStarTransitionEffect_Fall effect(screen, {});
  effect.startTransition(row(3));
  EXPECT_TRUE(effect.isRunning());
  EXPECT_EQ(xplAssertionsReport ? 1 : 0,
            countEntriesWith("#8652: startTransition() particlePtrList is null, source cStarTransition"));
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

}  // namespace
