// Where the points of a text stand on the window.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

#include "messageProjectionFixture.h"
#include "support/assertion.h"
#include "support/random.h"

namespace {

TEST_F(MessageProjection, StaysBelowTheTopThirtyPercentAndInsideTheWindow) {
  xplRandom::seed(8);
  for (int i = 0; i < 500; ++i) {
    const Extent extent = extentOf(project("Good night\r\nsleep well"));
    ASSERT_GE(extent.minY, 324) << "a whole number of the text's pixels, 12 each";
    ASSERT_LE(extent.maxY, 1026);
    ASSERT_GE(extent.minX, 96 - 12);
    ASSERT_LE(extent.maxX, 1824);
  }
}

TEST_F(MessageProjection, PutsTheFormationAnywhereInThere) {
  xplRandom::seed(8);
  int leftmost = 10000;
  int rightmost = 0;
  for (int i = 0; i < 200; ++i) {
    const Extent extent = extentOf(project("Moon"));
    leftmost = std::min(leftmost, extent.minX);
    rightmost = std::max(rightmost, extent.minX);
  }
  EXPECT_LT(leftmost, 150);
  EXPECT_GT(rightmost, 1300);
}

TEST_F(MessageProjection, DrawsTheColumnBeforeTheRow) {
  xplRandom::seed(20);
  const float first = xplRandom::unit();
  const float second = xplRandom::unit();
  const std::uint32_t after = xplRandom::state();
  xplRandom::seed(20);
  const Extent extent = extentOf(project("Moon"));
  EXPECT_EQ(after, xplRandom::state());
  const int expectedX = 96 + static_cast<int>(first * static_cast<float>(1824 - 96 - extent.width()));
  const int expectedY = 324 + static_cast<int>(second * static_cast<float>(1026 - 324 - extent.height()));
  EXPECT_NEAR(expectedX, extent.minX, 12);
  EXPECT_NEAR(expectedY, extent.minY, 12);
}

TEST_F(MessageProjection, CentresShortLinesUnderLongOnes) {
  const auto points = project("HHHHHHHHHHH\r\nHHH");
  const Extent whole = extentOf(points);
  std::vector<sTargetPoint> below;
  std::copy_if(points.begin(), points.end(), std::back_inserter(below),
               [&](const auto& point) { return point.y > whole.minY + whole.height() / 2; });
  const Extent second = extentOf(below);
  EXPECT_NEAR(whole.minX + whole.width() / 2, second.minX + second.width() / 2, 10);
  EXPECT_LT(second.width(), whole.width() / 2);
}

TEST_F(MessageProjection, OnWindowsOfAnySizeDoesNotFall) {
  for (const auto& [width, height] :
       std::vector<std::pair<int, int>>{{1, 1}, {1, 2000}, {64, 48}, {15360, 4320}, {2000, 1}}) {
    EXPECT_FALSE(project("Moon", xplRect<int>(0, 0, width, height)).empty()) << width << " x " << height;
  }
}

TEST_F(MessageProjection, OnAWindowWithoutAnExtentReportsTheScaleAndKeepsTheOffsets) {
  const auto points = project("Moon", xplRect<int>(0, 0, 0, 0));
  ASSERT_FALSE(points.empty());
  EXPECT_EQ((sTargetPoint{0, 0}), points.front());
  EXPECT_EQ(xplAssertionsReport ? 1 : 0, countEntriesWith("#2841: xplVector Div by zero., source xplVector"));
}

}  // namespace
