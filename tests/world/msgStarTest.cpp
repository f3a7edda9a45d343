// How a message star waits, flies, arrives and shows itself.
#include "support/assertion.h"
#include "worldFixture.h"

namespace {

constexpr float frame = 0.25F;  // seconds; exact in binary

class MsgStar : public World {
 protected:
  cMsgStar star{2.5F, 0.4F, 0.5F, 30.0F};

  void flyFor(float seconds) {
    for (float time = 0.0F; time < seconds; time += frame) {
      star.update(frame);
    }
  }
};

TEST_F(MsgStar, IsMadeInvisibleWithItsScheduleAtRest) {
  EXPECT_STREQ("msg star", star.name());
  EXPECT_FALSE(star.isVisible);
  EXPECT_TRUE(star.visibleAfterArrival);
  EXPECT_EQ(0, star.targetX);
  EXPECT_EQ(0, star.targetY);
  EXPECT_FLOAT_EQ(0.0F, star.clock());
  EXPECT_FLOAT_EQ(0.0F, star.startMovingAtTime());
  EXPECT_FLOAT_EQ(1.0F, star.endMovingAtTime());
  EXPECT_FALSE(star.movingStarted());
  EXPECT_FALSE(star.arrived());
}

TEST_F(MsgStar, DoesNothingWhileItIsInvisible) {
  star.speedX = 10.0F;
  const float phase = star.phase();
  flyFor(5.0F);
  EXPECT_FLOAT_EQ(0.0F, star.x);
  EXPECT_FLOAT_EQ(phase, star.phase());
  EXPECT_FLOAT_EQ(0.0F, star.clock());
}

TEST_F(MsgStar, StandsStillUntilItsTimeHasPassed) {
  star.targetX = 100;
  star.schedule(1.0F, 3.0F, true);
  flyFor(1.0F);
  EXPECT_FLOAT_EQ(1.0F, star.clock());
  EXPECT_FALSE(star.movingStarted()) << "its time is reached, not passed";
  EXPECT_FLOAT_EQ(0.0F, star.x);
  star.update(frame);
  EXPECT_TRUE(star.movingStarted());
  EXPECT_GT(star.x, 0.0F);
}

TEST_F(MsgStar, FliesStraightAtAConstantSpeedFromWhereItStands) {
  star.x = 20.0F;
  star.y = 50.0F;
  star.targetX = 100;
  star.targetY = 10;
  star.schedule(1.0F, 5.0F, true);
  flyFor(1.25F);
  EXPECT_FLOAT_EQ(20.0F, star.speedX);
  EXPECT_FLOAT_EQ(-10.0F, star.speedY);
  EXPECT_FLOAT_EQ(25.0F, star.x);
  EXPECT_FLOAT_EQ(47.5F, star.y);
  flyFor(2.0F);
  EXPECT_FLOAT_EQ(65.0F, star.x);
  EXPECT_FLOAT_EQ(27.5F, star.y);
}

TEST_F(MsgStar, ArrivesExactlyOnItsTargetAndStays) {
  star.x = 0.3F;
  star.targetX = 77;
  star.targetY = 33;
  star.schedule(0.5F, 2.0F, true);
  flyFor(2.0F);
  EXPECT_TRUE(star.arrived());
  EXPECT_TRUE(star.isVisible);
  EXPECT_FLOAT_EQ(77.0F, star.x);
  EXPECT_FLOAT_EQ(33.0F, star.y);
  flyFor(10.0F);
  EXPECT_FLOAT_EQ(77.0F, star.x);
  EXPECT_FLOAT_EQ(33.0F, star.y);
}

TEST_F(MsgStar, VanishesOnArrivalWhereItIsNotNeeded) {
  star.targetX = 77;
  star.schedule(0.5F, 2.0F, false);
  flyFor(1.75F);
  EXPECT_TRUE(star.isVisible);
  star.update(frame);
  EXPECT_FALSE(star.isVisible);
  EXPECT_FLOAT_EQ(77.0F, star.x);
}

TEST_F(MsgStar, BeginsAndEndsItsFlightInOneLongFrame) {
  star.targetX = 5;
  star.targetY = 6;
  star.schedule(1.0F, 2.0F, true);
  star.update(100.0F);
  EXPECT_TRUE(star.arrived());
  EXPECT_FLOAT_EQ(5.0F, star.x);
  EXPECT_FLOAT_EQ(6.0F, star.y);
}

TEST_F(MsgStar, TwinklesWhileItFlies) {
  star.setPhase(0.0F);
  star.targetX = 100;
  star.schedule(0.0F, 20.0F, true);
  star.update(frame);
  EXPECT_GT(star.brightness(), star.baseBrightness());
}

TEST_F(MsgStar, ReportsAFlightThatEndsBeforeItBegins) {
  star.schedule(2.0F, 1.0F, true);
  star.update(3.0F);
  EXPECT_EQ(xplAssertionsReport ? 1 : 0,
            countEntriesWith("#2351: cMsgStar End-Start move time, source cMsgStar"));
}

TEST_F(MsgStar, IsDrawnOnlyWhileItIsVisible) {
  native = std::make_unique<TestWindow>(20, 20);
  window = std::make_unique<xplWindow>(native->handle());
  window->fillRect(xplRect<int>(0, 0, 20, 20), {0, 0, 0});
  star.setRenderWindow(window.get());
  star.x = 5.0F;
  star.y = 4.0F;
  star.draw();
  EXPECT_EQ(xplColor(0, 0, 0), window->getPixel(8, 7));
  star.isVisible = true;
  star.draw();
  EXPECT_NE(xplColor(0, 0, 0), window->getPixel(8, 7)) << "its middle";
  EXPECT_EQ(xplColor(0, 0, 0), window->getPixel(4, 7));
  EXPECT_EQ(xplColor(0, 0, 0), window->getPixel(12, 7));
}

TEST_F(MsgStar, CountsWithTheOtherStarsForThePalette) {
  const int made = countEntries("First cStarSpriteWithPixels create. Will create cStarPalette\n");
  const cStarSpriteWithPixels other(2.0F, "normal star", 0.2F, 0.6F, 100.0F);
  EXPECT_EQ(made, countEntries("First cStarSpriteWithPixels create. Will create cStarPalette\n"));
}

}  // namespace
