// How the old television is switched off, frame by frame.
#include <vector>

#include "oldTvFixture.h"

namespace {

TEST_F(OldTv, BeginsUnfinishedAndWithoutAWindow) {
  cWindowTransitionEffect_OldTV fresh(progress);
  EXPECT_FALSE(fresh.finished());
  EXPECT_EQ(0, fresh.getWidth());
  EXPECT_EQ(0, fresh.getHeight());
}

TEST_F(OldTv, LogsItsStartAndTakesTheWindowsSize) {
  makeEffect(160, 120);
  EXPECT_EQ(1, countEntries("cWindowTransitionEffect_base.initWithWindow()", "Info"));
  EXPECT_EQ(160, effect->getWidth());
  EXPECT_EQ(120, effect->getHeight());
}

TEST_F(OldTv, ItsStartChangesNothingOnTheScreen) {
  makeEffect(160, 120);
  EXPECT_EQ(160 * 120, countAll(desktop));
  window->flush();
  EXPECT_EQ(160 * 120, countAll(desktop));
}

TEST_F(OldTv, FirstDrawsBandsOfATenthOfHalfTheWindowAtTopAndBottom) {
  makeEffect(160, 120);
  drawFrames(1);
  EXPECT_EQ((std::vector<xplColor>{dark, desktop, dark}), runsOfColumn(0));
  for (int x = 0; x < 160; ++x) {
    ASSERT_EQ(dark, native->shownPixel(x, 5));
    ASSERT_EQ(desktop, native->shownPixel(x, 6));
    ASSERT_EQ(desktop, native->shownPixel(x, 113));
    ASSERT_EQ(dark, native->shownPixel(x, 114));
  }
}

TEST_F(OldTv, ClosesTheBandsInTenFrames) {
  makeEffect(160, 120);
  for (int frame = 1; frame < 10; ++frame) {
    drawFrames(1);
    ASSERT_EQ(12 * frame, countInColumn(80, dark)) << "frame " << frame;
    ASSERT_EQ(120 - 12 * frame, countInColumn(80, desktop)) << "frame " << frame;
  }
  drawFrames(1);
  EXPECT_EQ(160 * 120, countAll(dark));
}

TEST_F(OldTv, ThenShrinksALineAcrossTheMiddle) {
  makeEffect(160, 120);
  drawFrames(10);
  for (int frame = 0; frame < 8; ++frame) {
    drawFrames(1);
    const int start = 10 * frame;
    ASSERT_EQ(160 - 2 * start, countAll(white)) << "frame " << frame;
    ASSERT_EQ(160 - 2 * start, countInRow(60, white)) << "frame " << frame;
    ASSERT_EQ(white, native->shownPixel(start, 60));
    ASSERT_EQ(white, native->shownPixel(159 - start, 60));
    ASSERT_EQ(160 * 120, countAll(white) + countAll(dark));
  }
  drawFrames(1);
  EXPECT_EQ(0, countAll(white)) << "the line has no length left";
}

TEST_F(OldTv, ThenShrinksADotInTheMiddle) {
  makeEffect(160, 120);
  drawFrames(10 + 9);
  int before = 160 * 120;
  for (const int radius : {25, 21, 17, 13, 9, 5}) {
    drawFrames(1);
    const int dot = countAll(white);
    ASSERT_LT(dot, before) << "radius " << radius;
    ASSERT_NEAR(3.14 * (radius - 1) * (radius - 1), dot, 2 * radius) << "radius " << radius;
    // The rim is drawn with the window's own pen, which is black.
    ASSERT_EQ(white, native->shownPixel(80, 60));
    ASSERT_EQ(white, native->shownPixel(80 - radius + 2, 60));
    ASSERT_EQ(dark, native->shownPixel(80 - radius - 1, 60));
    ASSERT_EQ(dark, native->shownPixel(80 + radius + 1, 60));
    before = dot;
  }
}

TEST_F(OldTv, EndsWithTheDrawingOfTheLastDot) {
  makeEffect(160, 120);
  drawFrames(10 + 9 + 6);
  EXPECT_FALSE(effect->finished());
  drawFrames(1);
  EXPECT_TRUE(effect->finished());
}

TEST_F(OldTv, LeavesTheLastDotOnTheScreenUntilTheNextFlush) {
  makeEffect(160, 120);
  drawFrames(10 + 9 + 7);
  EXPECT_FALSE(native->shownPixel(80, 60) == dark);
  window->flush();
  EXPECT_EQ(160 * 120, countAll(dark));
}

TEST_F(OldTv, DrawsNothingMoreOnceItHasFinished) {
  makeEffect(160, 120);
  EXPECT_EQ(26, framesToTheEnd());
  window->fillRect(xplRect<int>(0, 0, 160, 120), desktop);
  effect->draw();
  window->flush();
  EXPECT_EQ(160 * 120, countAll(desktop));
}

TEST_F(OldTv, DrawsOnTheWindowWhileItPlaysAndLeavesTheBackBufferToOthersAfterwards) {
  makeEffect(160, 120);
  window->fillRect(xplRect<int>(3, 2, 1, 1), white);
  EXPECT_EQ(white, native->shownPixel(2, 3)) << "straight to the window";
  EXPECT_EQ(26, framesToTheEnd());
  window->fillRect(xplRect<int>(7, 2, 1, 1), white);
  EXPECT_FALSE(native->shownPixel(2, 7) == white) << "not before the flush";
  window->flush();
  EXPECT_EQ(white, native->shownPixel(2, 7));
}

}  // namespace
