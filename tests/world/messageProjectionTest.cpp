// Which points spell a text, and how far they are scaled.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "graphics/image.h"
#include "messageProjectionFixture.h"
#include "support/random.h"

namespace {

TEST_F(MessageProjection, TakesEveryPixelOfTheLettersOnce) {
  // The same letters, drawn here: as many bright pixels as there are points.
  xplImage image;
  image.initWithSizeAndColor(300, 150, {0, 0, 0});
  xplTextDrawingInfo info;
  info.color = xplColor(255, 255, 255);
  info.fontName = "Courier New";
  info.fontSize = 10;
  info.nonAntialiased = 1;
  image.drawText(20, 30, "Moon", info);
  std::size_t bright = 0;
  for (int y = 0; y < 150; ++y) {
    for (int x = 0; x < 300; ++x) {
      bright += image.getPixel(x, y) == xplColor(255, 255, 255) ? 1U : 0U;
    }
  }
  EXPECT_GT(bright, 40U);
  EXPECT_EQ(bright, project("Moon").size());
}

TEST_F(MessageProjection, GoesThroughThePixelsRowByRow) {
  const auto points = project("Lunaria\r\nscreensaver");
  EXPECT_TRUE(std::is_sorted(points.begin(), points.end(), [](const auto& a, const auto& b) {
    return a.y < b.y || (a.y == b.y && a.x < b.x);
  }));
}

TEST_F(MessageProjection, SaysWhatItProjectsAndWhereItGoes) {
  xplRandom::seed(3);
  project("Hi");
  EXPECT_EQ(1, countEntries("project(Hi)"));
  EXPECT_EQ(1, countEntriesWith("will scale x12.0, offsetX="));
}

TEST_F(MessageProjection, NeverScalesMoreThanTwelveTimes) {
  const Extent big = extentOf(project("I", xplRect<int>(0, 0, 15360, 4320)));
  const Extent small = extentOf(project("I", xplRect<int>(0, 0, 1920, 1080)));
  EXPECT_EQ(big.height(), small.height());
  EXPECT_EQ(0, small.height() % 12);
}

TEST_F(MessageProjection, FillsSixTenthsOfTheNarrowerDirection) {
  const Extent extent = extentOf(project("a message that is wide", xplRect<int>(0, 0, 1000, 1000)));
  EXPECT_GE(extent.width(), 590);
  EXPECT_LE(extent.width(), 601);
}

TEST_F(MessageProjection, ScalesASingleRowByItsWidthAlone) {
  const Extent row = extentOf(project("____", xplRect<int>(0, 0, 400, 30)));
  EXPECT_EQ(0, row.height());
  EXPECT_GE(row.width(), 230);
  EXPECT_LE(row.width(), 241);
}

TEST_F(MessageProjection, ScalesASingleRowAtMostTwelveTimes) {
  EXPECT_EQ(0, extentOf(project("____")).height());
  EXPECT_EQ(1, countEntriesWith("will scale x12.0"));
}

TEST_F(MessageProjection, TakesLettersOfTenPointsOrOfFewerWhereTheirLinesAreTall) {
  EXPECT_EQ(10, messageLetterSize([](int points) { return points * 16 / 10; }));
  EXPECT_EQ(5, messageLetterSize([](int points) { return points * 32 / 10; })) << "at 192 dots an inch";
  EXPECT_EQ(1, messageLetterSize([](int) { return 1000; }));
}

TEST_F(MessageProjection, OfASinglePixelScalesTwelveTimes) {
  // Of the grave accent, moved to the image's last column, one pixel remains.
  EXPECT_EQ(1U, project(std::string(37, ' ') + "`").size());
  EXPECT_EQ(1, countEntriesWith("will scale x12.0"));
}

TEST_F(MessageProjection, OfNothingGivesNoPoints) {
  EXPECT_TRUE(project("").empty());
  EXPECT_TRUE(project("   ").empty());
  EXPECT_TRUE(project("\r\n\r\n").empty());
}

TEST_F(MessageProjection, CutsWhatIsTooWideAtTheRight) {
  // The advance of these letters is 8 pixels: 300 pixels hold 37 and a half of them.
  const std::string text = "H" + std::string(35, ' ') + "HHHH";
  const std::size_t whole = project("H").size();
  EXPECT_GE(project(text).size(), 2 * whole);
  EXPECT_LT(project(text).size(), 3 * whole);
  EXPECT_EQ(whole, project("H" + std::string(60, ' ') + "H").size());
}

TEST_F(MessageProjection, OfLongTextsAndControlCharactersEndsAndIsBounded) {
  EXPECT_LE(project(std::string(4999, 'W')).size(), 45000U);
  std::string controls;
  for (char c = 1; c < 32; ++c) {
    controls += c;
  }
  project(controls);
  project("\xff\xfe\x80 broken");
  std::string lines;
  for (int i = 0; i < 2000; ++i) {
    lines += "x\r\n";
  }
  EXPECT_LE(project(lines).size(), 45000U);
}

}  // namespace
