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

constexpr std::uint32_t ofPicture = 7;
constexpr std::uint32_t ofBuffer = 1;

// What a buffer shows, of this size and with its corner at this place of a picture, after the part was
// copied.
struct CopyInto {
  int width, height, left, top;

  HeapPixelMemory from(int pictureWidth, int pictureHeight, const xplEdges& part) const {
    HeapPixelMemory picture(pictureWidth, pictureHeight);
    HeapPixelMemory buffer(width, height);
    std::fill_n(picture.pixels(), picture.stride() * static_cast<std::size_t>(pictureHeight), ofPicture);
    std::fill_n(buffer.pixels(), buffer.stride() * static_cast<std::size_t>(height), ofBuffer);
    PartCopy(picture, buffer, left, top).copy(part);
    return buffer;
  }
};

void expectCopied(const HeapPixelMemory& buffer, const xplEdges& part) {
  for (int y = 0; y < buffer.height(); ++y) {
    for (int x = 0; x < buffer.width(); ++x) {
      const bool isCopied = x >= part.left && x < part.right && y >= part.top && y < part.bottom;
      EXPECT_EQ(buffer.pixels()[static_cast<std::size_t>(y) * buffer.stride() + static_cast<std::size_t>(x)],
                isCopied ? ofPicture : ofBuffer)
          << x << "," << y;
    }
  }
}

TEST(PictureParts, AreCopiedAndNothingElseIs) {
  expectCopied(CopyInto{6, 6, 0, 0}.from(10, 10, {2, 3, 5, 5}), {2, 3, 5, 5});
  expectCopied(CopyInto{80, 20, 0, 0}.from(80, 20, {32, 8, 64, 16}), {32, 8, 64, 16});
}

TEST(PictureParts, ThatLieBesideThePictureAreNotCopied) {
  expectCopied(CopyInto{6, 6, 8, 7}.from(10, 10, {0, 0, 6, 6}), {0, 0, 2, 3});
  expectCopied(CopyInto{6, 6, -2, -1}.from(10, 10, {0, 0, 6, 6}), {2, 1, 6, 6});
  expectCopied(CopyInto{6, 6, 10, 0}.from(10, 10, {0, 0, 6, 6}), {0, 0, 0, 0});
}

TEST(PictureParts, ComeFromWhereTheBufferLies) {
  HeapPixelMemory picture(10, 10);
  HeapPixelMemory buffer(4, 4);
  picture.pixels()[5 * picture.stride() + 6] = ofPicture;
  PartCopy(picture, buffer, 4, 3).copy({0, 0, 4, 4});
  EXPECT_EQ(buffer.pixels()[2 * buffer.stride() + 2], ofPicture);
}

TEST(PictureParts, AnEmptyOneCopiesNothing) {
  expectCopied(CopyInto{5, 4, 0, 0}.from(5, 4, {0, 0, 0, 4}), {0, 0, 0, 0});
  expectCopied(CopyInto{5, 4, 0, 0}.from(5, 4, {3, 3, 1, 4}), {0, 0, 0, 0});
}

}  // namespace
