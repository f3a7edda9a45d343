// Tests which windows of other programs get the preview.
#include <gtest/gtest.h>

#include "host/linux/x11/smallWindow.h"

namespace {

using Mode = HostRequest::Mode;

const xplEdges wide{0, 0, 1920, 1080};
const xplEdges tall{1920, 0, 3000, 1920};  // 1080x1920

X11Facts factsOf(int width, int height, const std::vector<xplEdges>& monitors = {wide}) {
  X11Facts facts;
  facts.monitors = monitors;
  facts.window = X11Facts::ForeignWindow{
      .id = 42, .canBeDrawnOn = true, .x = 100, .y = 80, .width = width, .height = height};
  return facts;
}

Mode modeOf(int width, int height, const std::vector<xplEdges>& monitors = {wide}) {
  return modeIn(factsOf(width, height, monitors), Mode::foreignRun);
}

TEST(SmallWindow, OfASettingsProgramGetsThePreview) {
  EXPECT_EQ(modeOf(300, 180), Mode::preview);
  EXPECT_EQ(modeOf(1, 1), Mode::preview);
}

TEST(SmallWindow, HasAtMostHalfOfTheMonitorsArea) {
  EXPECT_EQ(modeOf(960, 1080), Mode::preview);
  EXPECT_EQ(modeOf(961, 1080), Mode::foreignRun);
  EXPECT_EQ(modeOf(1920, 540), Mode::preview);
  EXPECT_EQ(modeOf(1920, 541), Mode::foreignRun);
}

TEST(SmallWindow, IsTheWidePaneOnALittleMonitor) {
  EXPECT_EQ(modeOf(568, 300, {{0, 0, 800, 600}}), Mode::preview);
}

TEST(SmallWindow, IsHalfOfAnOddAreaRoundedDown) {
  EXPECT_EQ(modeOf(4, 1, {{0, 0, 3, 3}}), Mode::preview);
  EXPECT_EQ(modeOf(5, 1, {{0, 0, 3, 3}}), Mode::foreignRun);
}

TEST(SmallWindow, OfTheLargestSizesIsCountedWell) {
  EXPECT_EQ(modeOf(65535, 65535, {{0, 0, 65535, 65535}}), Mode::foreignRun);
  EXPECT_EQ(modeOf(65535, 32767, {{0, 0, 65535, 65535}}), Mode::preview);
}

TEST(SmallWindow, IsSmallForEveryMonitorWhereverItLies) {
  const xplEdges little{-640, 0, 0, 480};
  EXPECT_EQ(modeOf(320, 240, {wide, little}), Mode::preview);
  EXPECT_EQ(modeOf(640, 480, {wide, little}), Mode::foreignRun);
  EXPECT_EQ(modeOf(640, 480, {little, wide}), Mode::foreignRun);
}

TEST(SmallWindow, OfADaemonOnOneMonitorIsNone) {
  EXPECT_EQ(modeOf(1920, 1080), Mode::foreignRun);
  EXPECT_EQ(modeOf(1920, 1080, {wide, tall}), Mode::foreignRun);
  EXPECT_EQ(modeOf(1080, 1920, {wide, tall}), Mode::foreignRun);
}

TEST(SmallWindow, IsNeverTheRoot) {
  // Monitors may be said to be larger than the screen is.
  X11Facts facts = factsOf(800, 500);
  facts.window->isRoot = true;
  EXPECT_EQ(modeIn(facts, Mode::foreignRun), Mode::foreignRun);
}

TEST(SmallWindow, ThatIsNotThereChangesNothing) {
  X11Facts facts = factsOf(300, 180);
  facts.window.reset();
  EXPECT_EQ(modeIn(facts, Mode::foreignRun), Mode::foreignRun);
}

TEST(SmallWindow, ChangesNoOtherRequest) {
  for (const Mode mode : {Mode::fullRun, Mode::ordinaryWindow, Mode::preview}) {
    EXPECT_EQ(modeIn(factsOf(300, 180), mode), mode);
    EXPECT_EQ(modeIn(factsOf(1920, 1080), mode), mode);
  }
}

}  // namespace
