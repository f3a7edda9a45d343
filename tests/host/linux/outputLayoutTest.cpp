// Tests the picture that several outputs make together.
#include <cmath>

#include <gtest/gtest.h>

#include "host/linux/wayland/outputLayout.h"

namespace {

using Edges = std::vector<int>;

Edges listOf(const xplEdges& edges) {
  return {edges.left, edges.top, edges.right, edges.bottom};
}

std::vector<Edges> listOf(const std::vector<xplEdges>& rectangles) {
  std::vector<Edges> list;
  for (const auto& rectangle : rectangles) {
    list.push_back(listOf(rectangle));
  }
  return list;
}

OutputFacts outputAt(int x, int y, int width, int height) {
  OutputFacts output;
  output.x = x;
  output.y = y;
  output.modeWidth = width;
  output.modeHeight = height;
  return output;
}

// With the logical size that a compositor of that scale tells.
OutputFacts scaled(OutputFacts output, double scale) {
  output.scale = static_cast<int>(std::ceil(scale));
  output.logicalWidth = static_cast<int>(std::round(output.realWidth() / scale));
  output.logicalHeight = static_cast<int>(std::round(output.realHeight() / scale));
  return output;
}

TEST(OutputLayout, OfNoOutputIsNothing) {
  EXPECT_FALSE(layOutOutputs({}, true));
}

TEST(OutputLayout, OfOneOutputIsTheOutput) {
  const auto layout = layOutOutputs({outputAt(0, 0, 1920, 1080)}, true);
  EXPECT_EQ(layout->width, 1920);
  EXPECT_EQ(layout->height, 1080);
  EXPECT_EQ(listOf(layout->monitors), (std::vector<Edges>{{0, 0, 1920, 1080}}));
}

TEST(OutputLayout, CoversAllOutputsAndTheGapsBetween) {
  const auto layout = layOutOutputs({outputAt(0, 0, 1920, 1080), outputAt(2000, 100, 1280, 1024)}, true);
  EXPECT_EQ(layout->width, 3280);
  EXPECT_EQ(layout->height, 1124);
  EXPECT_EQ(listOf(layout->monitors), (std::vector<Edges>{{0, 0, 1920, 1080}, {2000, 100, 3280, 1124}}));
}

TEST(OutputLayout, BeginsAtItsUpperLeftCornerAndNotAtThePointZero) {
  const auto layout = layOutOutputs({outputAt(-1280, -200, 1280, 1024), outputAt(0, 0, 1920, 1080)}, true);
  EXPECT_EQ(layout->width, 3200);
  EXPECT_EQ(layout->height, 1280);
  EXPECT_EQ(listOf(layout->space.placeOf(outputAt(0, 0, 1920, 1080))), (Edges{1280, 200, 3200, 1280}));
}

TEST(OutputLayout, TheOutputAtThePointZeroIsTheMainOne) {
  const auto layout = layOutOutputs(
      {outputAt(-1280, 0, 1280, 1024), outputAt(1920, 0, 800, 600), outputAt(0, 0, 1920, 1080)}, true);
  EXPECT_EQ(listOf(layout->monitors),
            (std::vector<Edges>{{1280, 0, 3200, 1080}, {0, 0, 1280, 1024}, {3200, 0, 4000, 600}}));
}

TEST(OutputLayout, WhereNoneIsAtThePointZeroTheFirstIsTheMainOne) {
  const auto layout = layOutOutputs({outputAt(500, 0, 300, 200), outputAt(100, 0, 300, 200)}, true);
  EXPECT_EQ(listOf(layout->monitors), (std::vector<Edges>{{400, 0, 700, 200}, {0, 0, 300, 200}}));
}

TEST(OutputLayout, OutputsOfOneScaleHaveTheirOwnPixels) {
  for (const double scale : {2.0, 1.5, 1.25, 3.0}) {
    const auto first = scaled(outputAt(0, 0, 3840, 2160), scale);
    auto second = scaled(outputAt(0, 0, 1920, 1080), scale);
    second.x = *first.logicalWidth;
    const auto layout = layOutOutputs({first, second}, true);
    EXPECT_DOUBLE_EQ(layout->space.scale, scale);
    EXPECT_EQ(listOf(layout->monitors), (std::vector<Edges>{{0, 0, 3840, 2160}, {3840, 0, 5760, 1080}}))
        << scale;
  }
}

TEST(OutputLayout, AScaleThatDividesNoSideIsFoundAllTheSame) {
  const auto layout = layOutOutputs({scaled(outputAt(0, 0, 1366, 768), 1.5)}, true);
  EXPECT_DOUBLE_EQ(layout->space.scale, 1.5);
  EXPECT_EQ(listOf(layout->monitors), (std::vector<Edges>{{0, 0, 1366, 768}}));
}

TEST(OutputLayout, OutputsOfSeveralScalesHaveLogicalPixels) {
  const auto first = scaled(outputAt(0, 0, 3840, 2160), 2);
  const auto layout = layOutOutputs({first, outputAt(1920, 0, 1920, 1080)}, true);
  EXPECT_EQ(layout->space.scale, 1);
  EXPECT_EQ(listOf(layout->monitors), (std::vector<Edges>{{0, 0, 1920, 1080}, {1920, 0, 3840, 1080}}));
}

TEST(OutputLayout, WithoutScaledSurfacesThereAreLogicalPixels) {
  const auto layout = layOutOutputs({scaled(outputAt(0, 0, 3840, 2160), 2)}, false);
  EXPECT_EQ(layout->space.scale, 1);
  EXPECT_EQ(layout->width, 1920);
}

TEST(OutputLayout, AnOutputOnItsSideIsHigherThanWide) {
  auto output = outputAt(0, 0, 1920, 1080);
  for (const int transform : {1, 3, 5, 7}) {
    output.transform = transform;
    EXPECT_EQ(layOutOutputs({output}, true)->width, 1080);
    EXPECT_EQ(layOutOutputs({output}, true)->height, 1920);
  }
  output.transform = 2;
  EXPECT_EQ(layOutOutputs({output}, true)->width, 1920);
}

TEST(OutputLayout, ALogicalSizeThatIsNotToldFollowsFromTheScale) {
  auto output = outputAt(0, 0, 3840, 2160);
  output.scale = 2;
  EXPECT_EQ(output.width(), 1920);
  EXPECT_EQ(output.height(), 1080);
}

TEST(OutputLayout, NoPictureIsLargerThanAPointersCoordinates) {
  const auto layout = layOutOutputs({outputAt(0, 0, 1920, 1080), outputAt(1000000, 0, 1920, 1080)}, true);
  EXPECT_EQ(layout->width, 32767);
  EXPECT_EQ(layout->height, 1080);
  EXPECT_EQ(listOf(layout->monitors), (std::vector<Edges>{{0, 0, 1920, 1080}}));
}

TEST(MonitorsOnAPicture, AreTheOutputsPartsOfItTheMainOneFirst) {
  const auto layout = layOutOutputs({outputAt(0, 0, 1920, 1080), outputAt(1920, 0, 800, 600)}, true);
  EXPECT_EQ(listOf(monitorsOn(layout->space, layout->width, layout->height,
                              {outputAt(1920, 0, 1280, 1024), outputAt(0, 0, 1920, 1080)})),
            (std::vector<Edges>{{0, 0, 1920, 1080}, {1920, 0, 2720, 1024}}));
}

TEST(MonitorsOnAPicture, AreNotThoseBesideIt) {
  const auto layout = layOutOutputs({outputAt(0, 0, 1920, 1080)}, true);
  EXPECT_TRUE(
      monitorsOn(layout->space, layout->width, layout->height, {outputAt(1920, 0, 1280, 1024)}).empty());
}

TEST(PictureSpace, AnOutputThatComesLaterLiesWhereItLies) {
  const auto layout = layOutOutputs({outputAt(0, 0, 1920, 1080)}, true);
  EXPECT_EQ(listOf(layout->space.placeOf(outputAt(1920, -100, 800, 600))), (Edges{1920, -100, 2720, 500}));
}

TEST(PictureSpace, AnOutputOfAnotherScaleThatComesLaterTakesThePicturesPixels) {
  const auto layout = layOutOutputs({scaled(outputAt(0, 0, 3840, 2160), 2)}, true);
  EXPECT_EQ(listOf(layout->space.placeOf(outputAt(1920, 0, 1000, 500))), (Edges{3840, 0, 5840, 1000}));
}

}  // namespace
