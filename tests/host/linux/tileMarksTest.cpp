// Tests the marks of what is out of date in a buffer.
#include <vector>

#include <gtest/gtest.h>

#include "host/linux/wayland/tileMarks.h"

namespace {

using Edges = std::vector<int>;

std::vector<Edges> takeAll(TileMarks& marks) {
  std::vector<Edges> list;
  marks.takeAll([&](const xplEdges& part) {
    list.push_back({part.left, part.top, part.right, part.bottom});
  });
  return list;
}

TEST(TileMarks, AreNoneAtFirst) {
  TileMarks marks(100, 20, 0, 0);
  EXPECT_TRUE(takeAll(marks).empty());
}

TEST(TileMarks, OfAPartAreItsRowsInItsTiles) {
  TileMarks marks(100, 20, 0, 0);
  marks.mark({40, 5, 70, 9});
  EXPECT_EQ(takeAll(marks),
            (std::vector<Edges>{{32, 5, 64, 8}, {64, 5, 96, 8}, {32, 8, 64, 9}, {64, 8, 96, 9}}));
  EXPECT_TRUE(takeAll(marks).empty());
}

TEST(TileMarks, OfTheWholeEndAtItsEdges) {
  TileMarks marks(40, 10, 0, 0);
  marks.markAll();
  EXPECT_EQ(takeAll(marks),
            (std::vector<Edges>{{0, 0, 32, 8}, {32, 0, 40, 8}, {0, 8, 32, 10}, {32, 8, 40, 10}}));
}

TEST(TileMarks, FollowTheTilesOfThePicture) {
  for (const int left : {20, 52, -12}) {
    TileMarks marks(64, 8, left, 4);
    marks.markAll();
    EXPECT_EQ(
        takeAll(marks),
        (std::vector<Edges>{
            {0, 0, 12, 4}, {12, 0, 44, 4}, {44, 0, 64, 4}, {0, 4, 12, 8}, {12, 4, 44, 8}, {44, 4, 64, 8}}))
        << left;
  }
}

TEST(TileMarks, TwiceAreOneAndReachFromTheFirstRowToTheLast) {
  TileMarks marks(32, 8, 0, 0);
  marks.mark({0, 0, 5, 2});
  marks.mark({4, 6, 9, 7});
  EXPECT_EQ(takeAll(marks), (std::vector<Edges>{{0, 0, 32, 7}}));
}

TEST(TileMarks, AreFoundAmongManyTiles) {
  // 100 columns, so that a row of tiles is no multiple of any word's bits.
  TileMarks marks(3200, 80, 0, 0);
  const std::vector<Edges> parts{{0, 0, 32, 8},      {2016, 0, 2048, 8},  {2048, 0, 2080, 8},
                                 {3168, 0, 3200, 8}, {896, 48, 928, 56},  {928, 48, 960, 56},
                                 {0, 72, 32, 80},    {3168, 72, 3200, 80}};
  for (const Edges& part : parts) {
    marks.mark({part[0], part[1], part[2], part[3]});
  }
  EXPECT_EQ(takeAll(marks), parts);
  EXPECT_TRUE(takeAll(marks).empty());
}

}  // namespace
