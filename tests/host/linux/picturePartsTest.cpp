// Tests the parts of a picture that surfaces show, and the marks of what is out of date in a buffer.
#include <gtest/gtest.h>

#include "graphics/linux/heapPixelMemory.h"
#include "host/linux/wayland/pictureParts.h"
#include "host/linux/wayland/tileMarks.h"

namespace {

using Edges = std::vector<int>;

Edges listOf(const xplEdges& edges) {
  return {edges.left, edges.top, edges.right, edges.bottom};
}

std::vector<Edges> listOf(const std::vector<xplEdges>& parts) {
  std::vector<Edges> list;
  for (const auto& part : parts) {
    list.push_back(listOf(part));
  }
  return list;
}

std::vector<Edges> takeAll(TileMarks& marks) {
  std::vector<Edges> list;
  marks.takeAll([&](const xplEdges& tile) { list.push_back(listOf(tile)); });
  return list;
}

std::vector<Edges> cover(TileMarks& marks, const xplEdges& part) {
  std::vector<Edges> partly;
  marks.cover(part, [&](const xplEdges& tile) { partly.push_back(listOf(tile)); });
  return partly;
}

TEST(PictureParts, HaveTheirCommonPart) {
  EXPECT_EQ(listOf(commonPart({0, 0, 20, 20}, {10, 5, 30, 15})), (Edges{10, 5, 20, 15}));
  EXPECT_FALSE(isEmpty(commonPart({0, 0, 20, 20}, {19, 19, 30, 30})));
  EXPECT_TRUE(isEmpty(commonPart({0, 0, 20, 20}, {20, 0, 30, 20})));
  EXPECT_TRUE(isEmpty(commonPart({0, 0, 20, 20}, {0, 25, 20, 30})));
}

TEST(PictureParts, OfOneWidthBelowEachOtherAreJoined) {
  std::vector<xplEdges> parts = {
      {0, 0, 32, 8}, {64, 0, 96, 8}, {0, 8, 32, 16}, {64, 16, 96, 24}, {0, 16, 32, 24}};
  joinBelow(parts);
  EXPECT_EQ(listOf(parts), (std::vector<Edges>{{0, 0, 32, 24}, {64, 0, 96, 8}, {64, 16, 96, 24}}));
}

TEST(PictureParts, OfOtherWidthsAreNotJoined) {
  std::vector<xplEdges> parts = {{0, 0, 32, 8}, {0, 8, 64, 16}};
  joinBelow(parts);
  EXPECT_EQ(parts.size(), 2U);
}

TEST(PictureParts, ThatOverlapAreJoinedAndOneWithinAnotherIsLost) {
  std::vector<xplEdges> parts = {{0, 0, 32, 24}, {0, 8, 32, 16}, {0, 20, 32, 30}};
  joinBelow(parts);
  EXPECT_EQ(listOf(parts), (std::vector<Edges>{{0, 0, 32, 30}}));
}

TEST(PictureParts, NoneAreJoinedToNone) {
  std::vector<xplEdges> parts;
  joinBelow(parts);
  EXPECT_TRUE(parts.empty());
}

TEST(PictureParts, TooManyBecomeOne) {
  const std::vector<xplEdges> many(mostParts, xplEdges{1, 1, 2, 2});
  const xplEdges all{0, 0, 100, 50};
  std::vector<xplEdges> parts;
  addParts(parts, many, all);
  EXPECT_EQ(parts.size(), mostParts);
  addParts(parts, {many.data(), 1}, all);
  EXPECT_EQ(listOf(parts), (std::vector<Edges>{{0, 0, 100, 50}}));
}

TEST(PictureParts, AreCopiedAndNothingElseIs) {
  HeapPixelMemory from(5, 4);
  HeapPixelMemory to(6, 6);
  std::fill_n(from.pixels(), from.stride() * 4, 7U);
  std::fill_n(to.pixels(), to.stride() * 6, 1U);
  copyPixels(from, {1, 1, 4, 3}, to, 2, 3);
  for (int y = 0; y < 6; ++y) {
    for (int x = 0; x < 6; ++x) {
      const bool isCopied = x >= 2 && x < 5 && y >= 3 && y < 5;
      EXPECT_EQ(to.pixels()[static_cast<std::size_t>(y) * to.stride() + static_cast<std::size_t>(x)],
                isCopied ? 7U : 1U)
          << x << "," << y;
    }
  }
}

TEST(PictureParts, AnEmptyOneCopiesNothing) {
  HeapPixelMemory from(5, 4);
  HeapPixelMemory to(5, 4);
  from.pixels()[0] = 7;
  to.pixels()[0] = 1;
  copyPixels(from, {0, 0, 0, 4}, to, 0, 0);
  copyPixels(from, {3, 3, 1, 4}, to, 0, 0);
  EXPECT_EQ(to.pixels()[0], 1U);
}

TEST(TileMarks, AreNoneAtFirst) {
  TileMarks marks(100, 20, 0, 0);
  EXPECT_FALSE(marks.isAnyMarked());
  EXPECT_TRUE(takeAll(marks).empty());
}

TEST(TileMarks, OfAPartAreItsTiles) {
  TileMarks marks(100, 20, 0, 0);
  marks.mark({40, 5, 70, 9});
  EXPECT_EQ(takeAll(marks),
            (std::vector<Edges>{{32, 0, 64, 8}, {64, 0, 96, 8}, {32, 8, 64, 16}, {64, 8, 96, 16}}));
  EXPECT_FALSE(marks.isAnyMarked());
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

TEST(TileMarks, GoWithWhatCoversTheTile) {
  TileMarks marks(96, 8, 0, 0);
  marks.markAll();
  EXPECT_TRUE(cover(marks, {32, 0, 64, 8}).empty());
  EXPECT_EQ(takeAll(marks), (std::vector<Edges>{{0, 0, 32, 8}, {64, 0, 96, 8}}));
}

TEST(TileMarks, OfATileThatIsCoveredInPartAreToldBeforeTheyGo) {
  TileMarks marks(96, 8, 0, 0);
  marks.markAll();
  EXPECT_EQ(cover(marks, {31, 0, 64, 8}), (std::vector<Edges>{{0, 0, 32, 8}}));
  EXPECT_EQ(takeAll(marks), (std::vector<Edges>{{64, 0, 96, 8}}));
}

TEST(TileMarks, TwiceAreOne) {
  TileMarks marks(32, 8, 0, 0);
  marks.mark({0, 0, 5, 5});
  marks.mark({4, 4, 9, 8});
  EXPECT_EQ(takeAll(marks).size(), 1U);
  EXPECT_FALSE(marks.isAnyMarked());
}

}  // namespace
