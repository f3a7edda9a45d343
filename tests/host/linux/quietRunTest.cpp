// Tests which of several runs on one screen are quiet.
#include <gtest/gtest.h>

#include "host/linux/x11/quietRun.h"

namespace {

using Mode = HostRequest::Mode;

const xplEdges mainMonitor{1920, 300, 3200, 1020};  // 1280x720
const xplEdges leftMonitor{0, 0, 1920, 1080};

X11Facts factsOf(const xplEdges& place, const std::vector<xplEdges>& monitors = {mainMonitor, leftMonitor}) {
  X11Facts facts;
  facts.monitors = monitors;
  facts.window = X11Facts::ForeignWindow{.id = 42,
                                         .canBeDrawnOn = true,
                                         .x = place.left,
                                         .y = place.top,
                                         .width = place.right - place.left,
                                         .height = place.bottom - place.top};
  return facts;
}

bool isQuiet(const xplEdges& place, const std::vector<xplEdges>& monitors = {mainMonitor, leftMonitor}) {
  return isQuietIn(factsOf(place, monitors), Mode::foreignRun);
}

TEST(QuietRun, IsTheOneOverAnotherMonitorThanTheMainOne) {
  EXPECT_FALSE(isQuiet(mainMonitor));
  EXPECT_TRUE(isQuiet(leftMonitor));
}

TEST(QuietRun, IsEachButTheMainOneOfThree) {
  const xplEdges above{1920, -1080, 3840, 0};
  const std::vector<xplEdges> three = {mainMonitor, leftMonitor, above};
  EXPECT_FALSE(isQuiet(mainMonitor, three));
  EXPECT_TRUE(isQuiet(leftMonitor, three));
  EXPECT_TRUE(isQuiet(above, three));
}

TEST(QuietRun, IsNoneOnTheOnlyMonitor) {
  EXPECT_FALSE(isQuiet(leftMonitor, {leftMonitor}));
  EXPECT_FALSE(isQuiet({500, 500, 2420, 1580}, {leftMonitor}));
}

TEST(QuietRun, IsNoneOverAllMonitors) {
  EXPECT_FALSE(isQuiet({0, 0, 3200, 1080}));
}

TEST(QuietRun, IsNoneOverTheMainMonitorsCornerHoweverLittleOfItThatIs) {
  EXPECT_FALSE(isQuiet({0, 0, 1921, 1080}));
  EXPECT_TRUE(isQuiet({0, 0, 1920, 1080})) << "the right edge is not in the window";
  EXPECT_FALSE(isQuiet({0, 0, 1921, 301}));
  EXPECT_TRUE(isQuiet({0, 0, 1921, 300})) << "the bottom edge is not in the window";
  EXPECT_FALSE(isQuiet({1920, 300, 1921, 301}));
  EXPECT_FALSE(isQuiet({0, 0, 1920, 1080}, {{0, 0, 1024, 768}, {0, 0, 1920, 1080}}))
      << "two monitors that show the same";
}

TEST(QuietRun, IsNoneThatOverlapsTheMainMonitorMost) {
  EXPECT_FALSE(isQuiet({1900, 310, 3200, 1020}));
  EXPECT_FALSE(isQuiet({2000, 400, 3300, 1100}));
  EXPECT_TRUE(isQuiet({1000, 310, 2000, 1020}));
}

TEST(QuietRun, IsNoneThatOverlapsAnotherMonitorJustAsMuch) {
  EXPECT_FALSE(isQuiet({1820, 400, 2020, 500}));
  EXPECT_TRUE(isQuiet({1819, 400, 2020, 500}));
}

TEST(QuietRun, IsNoneOnNoMonitor) {
  EXPECT_FALSE(isQuiet({5000, 5000, 6000, 6000}));
  EXPECT_FALSE(isQuiet({3200, 1080, 4480, 1800})) << "it touches a corner";
  EXPECT_FALSE(isQuiet({-1920, 0, 0, 1080})) << "it touches an edge";
}

TEST(QuietRun, IsCountedWellAtTheLargestSizes) {
  const xplEdges all{0, 0, 65535, 65535};
  EXPECT_TRUE(isQuiet(all, {{-640, -480, 10, 10}, all}));
  EXPECT_FALSE(isQuiet({-1, -1, 65534, 65534}, {all, {-640, -480, 10, 10}}));
}

TEST(QuietRun, IsNeverTheOneOnTheRoot) {
  X11Facts facts = factsOf(leftMonitor);
  facts.window->isRoot = true;
  EXPECT_FALSE(isQuietIn(facts, Mode::foreignRun));
}

TEST(QuietRun, IsNoneWithoutAWindow) {
  X11Facts facts = factsOf(leftMonitor);
  facts.window.reset();
  EXPECT_FALSE(isQuietIn(facts, Mode::foreignRun));
}

TEST(QuietRun, IsOnlyADaemons) {
  for (const Mode mode : {Mode::fullRun, Mode::ordinaryWindow, Mode::preview}) {
    EXPECT_FALSE(isQuietIn(factsOf(leftMonitor), mode));
  }
}

}  // namespace
