// Which message stars come, stay and leave when a message follows another, and where they fly.
#include "starTransitionFixture.h"
#include "support/assertion.h"

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

TEST_F(StarTransition, WithoutStarsIsReportedAndStartsAllTheSame) {
  cStarTransitionEffect_Fall effect(screen, {});
  effect.startTransition(row(3));
  EXPECT_TRUE(effect.isRunning());
  EXPECT_EQ(xplAssertionsReport ? 1 : 0,
            countEntriesWith("#8652: startTransition() particlePtrList is null, source cStarTransition"));
}
