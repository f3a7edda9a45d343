// Tests the conversion between our pixels and those of other screens.
#include <vector>

#include <gmock/gmock.h>

#include "host/linux/x11/pixelFormat.h"

namespace {

using testing::ElementsAre;

constexpr PixelFormat::Masks masks888{0xFF0000, 0xFF00, 0xFF};
constexpr PixelFormat::Masks masks565{0xF800, 0x07E0, 0x001F};
constexpr PixelFormat::Masks masks555{0x7C00, 0x03E0, 0x001F};

std::vector<int> bytesOf(const PixelFormat& format, const std::vector<std::uint32_t>& pixels) {
  const int width = static_cast<int>(pixels.size());
  std::vector<std::uint8_t> row(format.rowSize(width), 0xEE);
  format.convertRow(pixels.data(), width, row.data());
  return {row.begin(), row.end()};
}

std::vector<std::uint32_t> pixelsOf(const PixelFormat& format, const std::vector<std::uint8_t>& row,
                                    int width) {
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width));
  format.convertRowBack(row.data(), width, pixels.data());
  return pixels;
}

TEST(PixelFormat, OursIsCopied) {
  const PixelFormat format(24, 32, 32, true, masks888);
  EXPECT_TRUE(format.isOurs());
  EXPECT_THAT(bytesOf(format, {0xFF102030}), ElementsAre(0x30, 0x20, 0x10, 0xFF));
}

TEST(PixelFormat, AnotherOrderOfBytesOrColoursIsNotOurs) {
  EXPECT_FALSE(PixelFormat(24, 32, 32, false, masks888).isOurs());
  EXPECT_FALSE(PixelFormat(24, 32, 32, true, {0xFF, 0xFF00, 0xFF0000}).isOurs());
  EXPECT_FALSE(PixelFormat(16, 16, 32, true, masks565).isOurs());
  EXPECT_FALSE(PixelFormat(24, 24, 32, true, masks888).isOurs());
}

TEST(PixelFormat, RowsArePadded) {
  EXPECT_EQ(PixelFormat(16, 16, 32, true, masks565).rowSize(1), 4U);
  EXPECT_EQ(PixelFormat(16, 16, 32, true, masks565).rowSize(2), 4U);
  EXPECT_EQ(PixelFormat(16, 16, 32, true, masks565).rowSize(3), 8U);
  EXPECT_EQ(PixelFormat(24, 24, 32, true, masks888).rowSize(1), 4U);
  EXPECT_EQ(PixelFormat(24, 24, 8, true, masks888).rowSize(3), 9U);
  EXPECT_EQ(PixelFormat(24, 32, 32, true, masks888).rowSize(15360), 61440U);
  EXPECT_EQ(PixelFormat(24, 32, 32, true, masks888).rowSize(0), 0U);
}

TEST(PixelFormat, SixteenBitsRoundEachChannel) {
  const PixelFormat format(16, 16, 32, true, masks565);
  EXPECT_THAT(bytesOf(format, {0xFFFFFFFF, 0xFF000000}), ElementsAre(0xFF, 0xFF, 0, 0));
  EXPECT_THAT(bytesOf(format, {0xFFFF0000, 0xFF00FF00}), ElementsAre(0x00, 0xF8, 0xE0, 0x07));
  // 4 of 255 rounds to 0 of 31, 5 to 1; 2 to 0 of 63, 3 to 1.
  EXPECT_THAT(bytesOf(format, {0xFF000004, 0xFF000005}), ElementsAre(0, 0, 1, 0));
  EXPECT_THAT(bytesOf(format, {0xFF000200, 0xFF000300}), ElementsAre(0, 0, 0x20, 0));
}

TEST(PixelFormat, FifteenBitsLeaveTheSixteenthAlone) {
  const PixelFormat format(15, 16, 32, true, masks555);
  EXPECT_THAT(bytesOf(format, {0xFFFFFFFF, 0xFFFF0000}), ElementsAre(0xFF, 0x7F, 0x00, 0x7C));
}

TEST(PixelFormat, PaddingOfARowIsNotWritten) {
  const PixelFormat format(16, 16, 32, true, masks565);
  EXPECT_THAT(bytesOf(format, {0xFF0000FF}), ElementsAre(0x1F, 0x00, 0xEE, 0xEE));
}

TEST(PixelFormat, TheOtherByteOrderIsKept) {
  EXPECT_THAT(bytesOf(PixelFormat(24, 32, 32, false, masks888), {0xFF102030}),
              ElementsAre(0, 0x10, 0x20, 0x30));
  EXPECT_THAT(bytesOf(PixelFormat(16, 16, 16, false, masks565), {0xFFFF0000}), ElementsAre(0xF8, 0x00));
}

TEST(PixelFormat, ThreeBytesAPixelArePacked) {
  EXPECT_THAT(bytesOf(PixelFormat(24, 24, 8, true, masks888), {0xFF102030, 0xFF405060}),
              ElementsAre(0x30, 0x20, 0x10, 0x60, 0x50, 0x40));
}

TEST(PixelFormat, ThirtyBitsStretchEachChannel) {
  const PixelFormat format(30, 32, 32, true, {0x3FF00000, 0xFFC00, 0x3FF});
  EXPECT_THAT(bytesOf(format, {0xFF0000FF}), ElementsAre(0xFF, 0x03, 0x00, 0x00));
  EXPECT_THAT(pixelsOf(format, {0xFF, 0x03, 0, 0}, 1), ElementsAre(0xFF0000FFU));
}

TEST(PixelFormat, AWindowWithAlphaIsOpaque) {
  const PixelFormat format(32, 32, 32, true, {0xFF, 0xFF00, 0xFF0000});
  EXPECT_THAT(bytesOf(format, {0xFF102030}), ElementsAre(0x10, 0x20, 0x30, 0xFF));
}

TEST(PixelFormat, TheWayBackGivesOpaquePixels) {
  EXPECT_THAT(pixelsOf(PixelFormat(24, 32, 32, true, masks888), {0x30, 0x20, 0x10, 0x00}, 1),
              ElementsAre(0xFF102030U));
  EXPECT_THAT(pixelsOf(PixelFormat(16, 16, 32, true, masks565), {0xFF, 0xFF, 0x00, 0xF8}, 2),
              ElementsAre(0xFFFFFFFFU, 0xFFFF0000U));
}

TEST(PixelFormat, EverySixteenBitPixelComesBack) {
  const PixelFormat format(16, 16, 16, true, masks565);
  for (int value = 0; value < 0x10000; ++value) {
    const std::vector<std::uint8_t> row{static_cast<std::uint8_t>(value & 0xFF),
                                        static_cast<std::uint8_t>(value >> 8)};
    const auto pixels = pixelsOf(format, row, 1);
    std::vector<std::uint8_t> again(2);
    format.convertRow(pixels.data(), 1, again.data());
    ASSERT_EQ(again, row) << value;
  }
}

}  // namespace
