// How the two restrictions turn or move a particle that reaches an edge.
#include "particleFixture.h"
#include "support/assertion.h"

namespace {

using Restrictions = Particles;

TEST_F(Restrictions, BounceAtEachEdgeWithoutBeingMoved) {
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

TEST_F(Restrictions, BeyondAnEdgeButMovingInwardKeepTheirSpeed) {
  place(-50.0F, 300.0F, 3.0F, -4.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-4.0F, particle.speedY);
}

TEST_F(Restrictions, InsideKeepTheirSpeed) {
  place(50.0F, 50.0F, 3.0F, -4.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-4.0F, particle.speedY);
}

TEST_F(Restrictions, ThatLeaveOnTheRightComeInOnTheLeft) {
  place(110.0F, 50.0F, 1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(10.0F, particle.left);
}

TEST_F(Restrictions, ThatLeaveOnTheLeftComeInOnTheRight) {
  place(0.0F, 50.0F, -1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(110.0F, particle.left);
}

TEST_F(Restrictions, ThatLeaveAtTheTopAndBottomComeInOnTheOtherSide) {
  place(50.0F, 15.0F, 0.0F, -1.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(100.0F, particle.top);
  place(50.0F, 100.0F, 0.0F, 1.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(20.0F, particle.top);
}

TEST_F(Restrictions, ThatAreStillPartlyInsideDoNotWrap) {
  place(109.9F, 50.0F, 1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(109.9F, particle.left);
}

TEST_F(Restrictions, OutsideButMovingInwardDoNotWrap) {
  place(-40.0F, 50.0F, 1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(-40.0F, particle.left);
}

TEST_F(Restrictions, NegativePlacesTruncateTowardsZero) {
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

TEST_F(Restrictions, WithoutARectangleAreLeftAlone) {
  TorvMoveRestriction_BounceInsideRect noRectangle;
  TorvMoveRestriction_ContinueInsideRect noRectangleEither;
  place(-500.0F, -500.0F, -1.0F, -1.0F);
  EXPECT_FALSE(noRectangle.apply(&particle));
  EXPECT_FALSE(noRectangleEither.apply(&particle));
  EXPECT_FLOAT_EQ(-1.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-500.0F, particle.left);
}

TEST_F(Restrictions, ANullParticleIsReportedInDebugBuilds) {
  EXPECT_FALSE(bounce.apply(nullptr));
  EXPECT_FALSE(wrap.apply(nullptr));
  const std::string log = logText();
  for (const char* tag : {"#9713: TorvMoveRestriction_InsideRect nil aParticlePtr", "#8513: nil aParticlePtr",
                          "#8513b: nil aParticlePtr"}) {
    EXPECT_EQ(xplAssertionsReport, log.find(tag) != std::string::npos) << tag;
  }
}

TEST_F(Restrictions, BounceAtTheFirstPixelThatTouchesAnEdgeAndNotBefore) {
  place(11.0F, 21.0F, -3.0F, -4.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(-3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-4.0F, particle.speedY);
  place(99.5F, 94.5F, 3.0F, 4.0F);  // the edges at 109.5 and 99.5 count as 109 and 99
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(4.0F, particle.speedY);
}

TEST_F(Restrictions, BounceAtOneEdgeLeavesTheOtherSpeedAlone) {
  place(5.0F, 50.0F, -3.0F, 4.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(3.0F, particle.speedX);
  EXPECT_FLOAT_EQ(4.0F, particle.speedY);
}

TEST_F(Restrictions, AParticleWiderThanTheAreaBouncesOnceForEachApplication) {
  particle.width = 500.0F;
  place(0.0F, 50.0F, -3.0F, 0.0F);  // beyond both edges
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(3.0F, particle.speedX);
}

TEST_F(Restrictions, WrapOnlyWhatIsWhollyOutside) {
  place(0.9F, 50.0F, -1.0F, 0.0F);  // its right edge at 10.9 counts as 10, the area's left edge
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(110.0F, particle.left);
  place(1.0F, 50.0F, -1.0F, 0.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(1.0F, particle.left);
  place(50.0F, 16.0F, 0.0F, -1.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(16.0F, particle.top);
  place(50.0F, 99.9F, 0.0F, 1.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(99.9F, particle.top);
}

TEST_F(Restrictions, WrapBothWaysAtOnceAndKeepTheSpeed) {
  place(300.0F, -300.0F, 2.0F, -3.0F);
  EXPECT_TRUE(wrap.apply(&particle));
  EXPECT_FLOAT_EQ(10.0F, particle.left);
  EXPECT_FLOAT_EQ(100.0F, particle.top);
  EXPECT_FLOAT_EQ(2.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-3.0F, particle.speedY);
}

TEST_F(Restrictions, PlacesThatNoIntHoldsAreBeyondTheEdges) {
  place(1e30F, -1e30F, 1.0F, -1.0F);
  EXPECT_TRUE(bounce.apply(&particle));
  EXPECT_FLOAT_EQ(-1.0F, particle.speedX);
  EXPECT_FLOAT_EQ(1.0F, particle.speedY);
}

}  // namespace
