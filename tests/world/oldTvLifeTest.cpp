// How long the old television takes, a second time in a process and in windows of all sizes.
#include <memory>
#include <utility>
#include <vector>

#include "oldTvFixture.h"

namespace {

TEST_F(OldTv, OnA1920x1080WindowTakesTenBandsNineLinesAndSevenDots) {
  makeEffect(1920, 1080);
  drawFrames(10);
  EXPECT_EQ(0, progress.lineStart);
  drawFrames(9);
  EXPECT_EQ(1080, progress.lineStart);
  EXPECT_EQ(25, progress.dotRadius);
  std::vector<int> radii;
  while (!effect->finished()) {
    radii.push_back(progress.dotRadius);
    effect->draw();
  }
  EXPECT_EQ((std::vector<int>{25, 21, 17, 13, 9, 5, 1}), radii);
}

TEST_F(OldTv, KeptASecondEffectFindsLineAndDotUsedUp) {
  makeEffect(160, 120);
  EXPECT_EQ(26, framesToTheEnd());
  makeEffect(160, 120);
  drawFrames(9);
  EXPECT_GT(countAll(desktop), 0);
  drawFrames(1);
  EXPECT_EQ(160 * 120, countAll(dark));
  drawFrames(1);  // the line's one frame
  EXPECT_FALSE(effect->finished());
  drawFrames(1);  // the dot's
  EXPECT_TRUE(effect->finished());
}

TEST_F(OldTv, KeptTheProcessHasOneProgressForAllEffects) {
  sOldTvProgress& processes = sOldTvProgress::ofProcess();
  const sOldTvProgress before = processes;
  processes = {};
  makeEffect(160, 120);
  window->setUseBackBuffer(true);
  for (const int frames : {26, 12}) {
    effect = std::make_unique<cWindowTransitionEffect_OldTV>();
    effect->initWithWindow(window.get(), 0);
    EXPECT_EQ(frames, framesToTheEnd());
  }
  EXPECT_EQ(-3, processes.dotRadius);
  EXPECT_EQ(100, processes.lineStart);
  EXPECT_EQ(25, progress.dotRadius) << "one of its own is not touched";
  processes = before;
}

// The bands are laid by the window's own corner, line and dot by the window's fill.
TEST_F(OldTv, KeptTheFillBeginsAtTheWindowsPlaceOnTheScreen) {
  makeEffect(160, 120, 40, 30);
  drawFrames(10 + 2);
  EXPECT_EQ(white, native->shownPixel(0, 60)) << "what stands left of the fill is not wiped out";
  EXPECT_EQ(dark, native->shownPixel(159, 60));
}

TEST_F(OldTv, WithoutAWindowHasFinishedAtItsFirstFrame) {
  effect = std::make_unique<cWindowTransitionEffect_OldTV>(progress);
  effect->initWithWindow(nullptr, 0);
  EXPECT_EQ(0, effect->getWidth());
  EXPECT_EQ(1, framesToTheEnd());
  EXPECT_EQ(25, progress.dotRadius);
}

TEST_F(OldTv, OnAWindowWithoutHeightClosesTheBandsInOneFrame) {
  window = std::make_unique<xplWindow>(xplWindowHandle{});
  startEffect();
  drawFrames(1);
  EXPECT_EQ(0, progress.lineStart);
  EXPECT_FALSE(progress.lineIsMeasured);
  drawFrames(1);
  EXPECT_TRUE(progress.lineIsMeasured);
  EXPECT_EQ(7, framesToTheEnd());
}

TEST_F(OldTv, EndsInWindowsOfAnySize) {
  for (const auto& [width, height] : std::vector<std::pair<int, int>>{
           {1, 1}, {1, 2000}, {2, 2}, {15, 19}, {16, 20}, {17, 21}, {64, 48}, {152, 112}, {900, 2}}) {
    progress = {};
    makeEffect(width, height);
    const int frames = framesToTheEnd();
    EXPECT_GT(frames, 8) << width << " x " << height;
    EXPECT_LE(frames, 50) << width << " x " << height;
    // Looked at in the back buffer, since a window may reach beyond the screen.
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        ASSERT_EQ(dark, window->getPixel(x, y)) << width << " x " << height;
      }
    }
  }
}

}  // namespace
