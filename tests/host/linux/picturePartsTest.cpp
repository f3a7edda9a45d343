// Tests the arithmetic and the copying of a picture's parts.
#include <vector>

#include <gtest/gtest.h>

#include "graphics/linux/heapPixelMemory.h"
#include "host/linux/wayland/pictureParts.h"

namespace {

using Edges = std::vector<int>;

Edges listOf(const xplEdges& edges) {
  return {edges.left, edges.top, edges.right, edges.bottom};
}

TEST(PictureParts, HaveTheirCommonPart) {
  EXPECT_EQ(listOf(commonPart({0, 0, 20, 20}, {10, 5, 30, 15})), (Edges{10, 5, 20, 15}));
  EXPECT_FALSE(isEmpty(commonPart({0, 0, 20, 20}, {19, 19, 30, 30})));
  EXPECT_TRUE(isEmpty(commonPart({0, 0, 20, 20}, {20, 0, 30, 20})));
  EXPECT_TRUE(isEmpty(commonPart({0, 0, 20, 20}, {0, 25, 20, 30})));
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

}  // namespace
