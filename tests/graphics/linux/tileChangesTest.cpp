// Which parts of a picture count as changed.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/linux/heapPixelMemory.h"
#include "graphics/linux/tileChanges.h"

namespace {

std::string describe(const std::vector<xplEdges>& parts) {
  std::string text;
  for (const auto& part : parts) {
    text += std::to_string(part.left) + "," + std::to_string(part.top) + "-" + std::to_string(part.right) +
            "," + std::to_string(part.bottom) + " ";
  }
  return text;
}

class TileChangesTest : public testing::Test {
 protected:
  HeapPixelMemory memory{200, 40};
  TileChanges changes{200, 40};

  void write(int x, int y, std::uint32_t word) {
    memory.pixels()[static_cast<std::size_t>(y) * memory.stride() + static_cast<std::size_t>(x)] = word;
    changes.mark(y, x, x + 1);
  }
};

TEST_F(TileChangesTest, AtFirstEverythingIsNew) {
  EXPECT_EQ("0,0-200,8 0,8-200,16 0,16-200,24 0,24-200,32 0,32-200,40 ",
            describe(changes.takeChanged(memory)));
  EXPECT_EQ("", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, APixelChangesItsRowOfTheTile) {
  changes.takeChanged(memory);
  write(199, 39, 5);
  EXPECT_EQ("192,39-200,40 ", describe(changes.takeChanged(memory)));
  write(0, 8, 5);
  EXPECT_EQ("0,8-32,9 ", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, RowsFromTheFirstToTheLastThatWasWrittenToAreOnePart) {
  changes.takeChanged(memory);
  write(3, 10, 5);
  write(4, 13, memory.pixels()[0]);
  EXPECT_EQ("0,10-32,14 ", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, NeighboursInARowAreOnePart) {
  changes.takeChanged(memory);
  write(0, 0, 5);
  write(32, 7, 5);
  write(199, 3, 5);
  EXPECT_EQ("0,0-64,8 192,3-200,4 ", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, WhatIsDrawnOverAndPutBackHasNotChanged) {
  changes.takeChanged(memory);
  const auto before = memory.pixels()[70];
  write(70, 0, 5);
  write(70, 0, before);
  EXPECT_EQ("", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, WhatWasLostIsNewAgain) {
  changes.takeChanged(memory);
  changes.forgetShown();
  EXPECT_EQ("0,0-200,8 0,8-200,16 0,16-200,24 0,24-200,32 0,32-200,40 ",
            describe(changes.takeChanged(memory)));
}

TEST(TileChangesOfNothing, AreNone) {
  HeapPixelMemory memory(0, 0);
  TileChanges changes(0, 0);
  EXPECT_TRUE(changes.takeChanged(memory).empty());
}

}  // namespace
