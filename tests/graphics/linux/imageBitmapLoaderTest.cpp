// Tests that the bitmap loader reads every kind of bitmap that it should.
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fourPixels.h"

namespace {

TEST(BitmapLoader, LoadsRowsFromTheBottomUp) {
  const LoadedBitmap loaded = load(fourPixels().file());
  ASSERT_NE(loaded.surface, nullptr);
  EXPECT_EQ(loaded.error, BitmapError::none);
  EXPECT_EQ(wordsOf(*loaded.surface), fourWords);
}

TEST(BitmapLoader, LoadsRowsFromTheTopDown) {
  BitmapBytes bitmap = fourPixels();
  bitmap.height = -2;
  bitmap.pixels = bitmap.pixels.substr(8) + bitmap.pixels.substr(0, 8);
  const LoadedBitmap loaded = load(bitmap.file());
  ASSERT_NE(loaded.surface, nullptr);
  EXPECT_EQ(wordsOf(*loaded.surface), fourWords);
}

TEST(BitmapLoader, LoadsTheOldHeadWithShortSizes) {
  const std::string file = "BM" + littleEndian(42, 4) + littleEndian(0, 4) + littleEndian(26, 4) +
                           littleEndian(12, 4) + littleEndian(2, 2) + littleEndian(2, 2) +
                           littleEndian(1, 2) + littleEndian(24, 2) + fourPixels().pixels;
  const LoadedBitmap loaded = load(file);
  ASSERT_NE(loaded.surface, nullptr);
  EXPECT_EQ(wordsOf(*loaded.surface), fourWords);
}

TEST(BitmapLoader, LoadsPackedPixels) {
  BitmapBytes bitmap;
  bitmap.width = 4;
  bitmap.height = 1;
  bitmap.bitsPerPixel = 8;
  bitmap.compression = 1;
  bitmap.palette = {0xff0000, 0x0000ff};
  bitmap.pixels = bytesOf({3, 1, 1, 0, 0, 0, 0, 1});
  const LoadedBitmap loaded = load(bitmap.file());
  ASSERT_NE(loaded.surface, nullptr);
  EXPECT_EQ(wordsOf(*loaded.surface),
            (std::vector<std::uint32_t>{0xff0000ffU, 0xff0000ffU, 0xff0000ffU, 0xffff0000U}));
}

TEST(BitmapLoader, MakesEveryPixelOpaque) {
  BitmapBytes bitmap;
  bitmap.width = 2;
  bitmap.height = 1;
  bitmap.bitsPerPixel = 32;
  bitmap.pixels = bytesOf({1, 2, 3, 0, 4, 5, 6, 128});
  const LoadedBitmap loaded = load(bitmap.file());
  ASSERT_NE(loaded.surface, nullptr);
  EXPECT_EQ(wordsOf(*loaded.surface), (std::vector<std::uint32_t>{0xff030201U, 0xff060504U}));
}

TEST(BitmapLoader, WidensEveryFiveBitValueByRepeatingItsHighestBits) {
  BitmapBytes bitmap;
  bitmap.width = 32;
  bitmap.height = 1;
  bitmap.bitsPerPixel = 16;
  std::vector<std::uint32_t> expected;
  for (std::uint32_t value = 0; value < 32; ++value) {
    bitmap.pixels += littleEndian(value, 2);
    expected.push_back(0xff000000U | (value << 3) | (value >> 2));
  }
  const LoadedBitmap loaded = load(bitmap.file());
  ASSERT_NE(loaded.surface, nullptr);
  EXPECT_EQ(wordsOf(*loaded.surface), expected);
}

}  // namespace
