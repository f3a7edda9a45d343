// How particles move and are restricted.
#include "harness/privateFolders.h"
#include "sprites/moveRestriction.h"
#include "sprites/particle.h"
#include "support/assertion.h"

namespace {

class Particles : public PrivateFolders {
 protected:
  Particles() {
    particle.width = 10.0F;
    particle.height = 5.0F;
  }
  void moveTimes(int times, float seconds = 0.1F) {
    for (int i = 0; i < times; ++i) {
      particle.move(seconds);
    }
  }
  void place(float x, float y, float speedX, float speedY) {
    particle.x = x;
    particle.y = y;
    particle.speedX = speedX;
    particle.speedY = speedY;
  }

  TorvParticle particle;
  xplRect<int> area{20, 10, 100, 80};  // top 20, left 10, right 110, bottom 100
  TorvMoveRestriction_BounceInsideRect bounce{&area};
  TorvMoveRestriction_ContinueInsideRect wrap{&area};
};

TEST_F(Particles, MoveBySpeedTimesTime) {
  place(1.0F, 2.0F, 8.0F, -4.0F);
  EXPECT_TRUE(particle.move(0.5F));
  EXPECT_FLOAT_EQ(5.0F, particle.left);
  EXPECT_FLOAT_EQ(0.0F, particle.top);
}

TEST_F(Particles, StandStillWhenNoTimePasses) {
  place(1.0F, 2.0F, 8.0F, -4.0F);
  EXPECT_FALSE(particle.move(0.0F));
  EXPECT_FLOAT_EQ(1.0F, particle.x);
  EXPECT_FLOAT_EQ(2.0F, particle.y);
}

TEST_F(Particles, WithoutSpeedDoNotCountTheMove) {
  particle.addMoveRestriction(bounce);
  place(5.0F, 50.0F, 0.0F, 0.0F);
  for (int i = 0; i < 20; ++i) {
    EXPECT_FALSE(particle.move(0.1F));
  }
  particle.speedX = -1.0F;
  moveTimes(9);
  EXPECT_FLOAT_EQ(-1.0F, particle.speedX);
  moveTimes(1);
  EXPECT_FLOAT_EQ(1.0F, particle.speedX);
}

TEST_F(Particles, KeptRestrictionsApplyOnEveryTenthMoveOnly) {
  particle.addMoveRestriction(bounce);
  place(12.0F, 50.0F, -10.0F, 0.0F);
  moveTimes(9);
  EXPECT_FLOAT_EQ(-10.0F, particle.speedX) << "beyond the edge, but not looked at yet";
  EXPECT_LT(particle.left, 10.0F);
  moveTimes(1);
  EXPECT_FLOAT_EQ(10.0F, particle.speedX);
  moveTimes(10);
  EXPECT_FLOAT_EQ(10.0F, particle.speedX) << "moving inward again";
}

TEST_F(Particles, ARestrictionThatIsAddedTwiceAppliesTwice) {
  particle.addMoveRestriction(wrap);
  particle.addMoveRestriction(wrap);
  place(200.0F, 50.0F, 1.0F, 0.0F);
  moveTimes(10);
  EXPECT_FLOAT_EQ(10.0F, particle.left);
}

TEST_F(Particles, BounceAtEachEdgeWithoutBeingMoved) {
  place(10.9F, 20.9F, -3.0F, -4.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(4.0F, particle.speedY);
  place(100.0F, 95.0F, 3.0F, 4.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(-3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-4.0F, particle.speedY);
  EXPECT_FLOAT_EQ(100.0F, particle.left);
  EXPECT_FLOAT_EQ(95.0F, particle.top);
}

TEST_F(Particles, BeyondAnEdgeButMovingInwardKeepTheirSpeed) {
  place(-50.0F, 300.0F, 3.0F, -4.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-4.0F, particle.speedY);
}

TEST_F(Particles, InsideKeepTheirSpeed) {
  place(50.0F, 50.0F, 3.0F, -4.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-4.0F, particle.speedY);
}

TEST_F(Particles, ThatLeaveOnTheRightComeInOnTheLeft) {
  place(110.0F, 50.0F, 1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(10.0F, particle.left);
}

TEST_F(Particles, ThatLeaveOnTheLeftComeInOnTheRight) {
  place(0.0F, 50.0F, -1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(110.0F, particle.left);
}

TEST_F(Particles, ThatLeaveAtTheTopAndBottomComeInOnTheOtherSide) {
  place(50.0F, 15.0F, 0.0F, -1.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(100.0F, particle.top);
  place(50.0F, 100.0F, 0.0F, 1.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(20.0F, particle.top);
}

TEST_F(Particles, ThatAreStillPartlyInsideDoNotWrap) {
  place(109.9F, 50.0F, 1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(109.9F, particle.left);
}

TEST_F(Particles, OutsideButMovingInwardDoNotWrap) {
  place(-40.0F, 50.0F, 1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(-40.0F, particle.left);
}

TEST_F(Particles, NegativePlacesTruncateTowardsZero) {
  xplRect<int> atOrigin{0, 0, 100, 100};
  TorvMoveRestriction_BounceInsideRect restriction(&atOrigin);
  place(0.5F, 50.0F, -1.0F, 0.0F);
  particle.x = -0.5F;
  EXPECT_TRUE(restriction.apply(&particle));
  EXPECT_FLOAT_EQ(1.0F, particle.speedX);
  TorvMoveRestriction_ContinueInsideRect wrapping(&atOrigin);
  place(-10.5F, 50.0F, -1.0F, 0.0F);  // the right edge at -0.5 counts as 0
  EXPECT_TRUE(wrapping.apply(&particle));
  EXPECT_FLOAT_EQ(100.0F, particle.left);
}

TEST_F(Particles, WithoutARectangleAreLeftAlone) {
  TorvMoveRestriction_BounceInsideRect noRectangle;
  TorvMoveRestriction_ContinueInsideRect noRectangleEither;
  place(-500.0F, -500.0F, -1.0F, -1.0F);
  EXPECT_FALSE(noRectangle.apply(&particle));
  EXPECT_FALSE(noRectangleEither.apply(&particle));
  EXPECT_FLOAT_EQ(-1.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-500.0F, particle.left);
}

TEST_F(Particles, ANullParticleIsReportedInDebugBuilds) {
  EXPECT_FALSE(bounce.apply(nullptr));
  EXPECT_FALSE(wrap.apply(nullptr));
  const std::string log = logText();
  for (const char* tag : {"#9713: TorvMoveRestriction_InsideRect nil aParticlePtr", "#8513: nil aParticlePtr",
                          "#8513b: nil aParticlePtr"}) {
    EXPECT_EQ(xplAssertionsReport, log.find(tag) != std::string::npos) << tag;
  }
}

TEST_F(Particles, EdgesAreWidenedToDouble) {
  particle.left = 16777216.0F;
  particle.width = 1.0F;
  EXPECT_EQ(16777217.0, static_cast<double>(particle.left) + static_cast<double>(particle.width));
  static_assert(std::is_same_v<decltype(particle.getRight()), double>);
  particle.setRight(16777226.0F);
  EXPECT_FLOAT_EQ(10.0F, particle.width);
  particle.top = 3.0F;
  particle.setBottom(9.0F);
  EXPECT_FLOAT_EQ(6.0F, particle.height);
  EXPECT_EQ(9.0, particle.getBottom());
}

}  // namespace
