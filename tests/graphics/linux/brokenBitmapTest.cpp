// Tests the bitmap loader with hand-made files that are broken.
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fourPixels.h"
#include "graphics/linux/bitmapHeader.h"

namespace {

void expectInvalid(const std::string& file) {
  const LoadedBitmap loaded = load(file);
  EXPECT_EQ(loaded.surface, nullptr);
  EXPECT_EQ(loaded.error, BitmapError::invalidData);
}

TEST(BitmapLoader, RefusesEveryTruncation) {
  const std::string file = fourPixels().file();
  for (std::size_t size = 0; size < file.size(); ++size) {
    SCOPED_TRACE(size);
    expectInvalid(file.substr(0, size));
  }
}

TEST(BitmapLoader, RefusesOtherFormats) {
  expectInvalid(bytesOf({0x89, 'P', 'N', 'G', 13, 10, 26, 10}) + std::string(200, '\0'));
  expectInvalid(bytesOf({0xff, 0xd8, 0xff, 0xe0}) + std::string(200, '\0'));
  expectInvalid("GIF89a" + std::string(200, '\0'));
  expectInvalid(std::string(200, 'B'));
}

TEST(BitmapLoader, RefusesSizesThatNoPictureHas) {
  const std::string file = fourPixels().file();
  for (const std::uint32_t width : {0U, 0xffffffffU, 0x80000000U, 16385U, 0x7fffffffU}) {
    SCOPED_TRACE(width);
    expectInvalid(with(file, placeOfWidth, width, 4));
  }
  for (const std::uint32_t height : {0U, 0x80000000U, 16385U, 0x7fffffffU, 0U - 16385U}) {
    SCOPED_TRACE(height);
    expectInvalid(with(file, placeOfHeight, height, 4));
  }
}

TEST(BitmapLoader, RefusesAHeadThatPromisesMorePixelsThanTheFileHas) {
  const std::string file = fourPixels().file();
  expectInvalid(with(file, placeOfWidth, 4, 4));
  expectInvalid(with(file, placeOfHeight, 3, 4));
  expectInvalid(with(file, placeOfDepth, 32, 2).substr(0, file.size() - 1));
  expectInvalid(with(with(file, placeOfWidth, 8192, 4), placeOfHeight, 8192, 4));
}

TEST(BitmapLoader, RefusesDepthsThatDoNotExist) {
  for (const std::uint32_t bits : {0U, 2U, 3U, 5U, 15U, 17U, 48U, 64U, 65535U}) {
    SCOPED_TRACE(bits);
    expectInvalid(with(fourPixels().file(), placeOfDepth, bits, 2));
  }
}

TEST(BitmapLoader, RefusesOffsetsOutsideTheFile) {
  for (const std::uint32_t offset : {70U, 71U, 0x7fffffffU, 0xffffffffU}) {
    SCOPED_TRACE(offset);
    expectInvalid(with(fourPixels().file(), placeOfOffset, offset, 4));
  }
}

TEST(BitmapLoader, RefusesInfoBlocksOfUnknownSize) {
  for (const std::uint32_t size : {0U, 11U, 13U, 39U, 257U, 0xffffffffU}) {
    SCOPED_TRACE(size);
    expectInvalid(with(fourPixels().file(), placeOfInfoSize, size, 4));
  }
}

BitmapBytes sixteenPixels() {
  BitmapBytes bitmap;
  bitmap.width = 4;
  bitmap.height = 4;
  bitmap.bitsPerPixel = 8;
  bitmap.palette = {0xff0000, 0x0000ff};
  bitmap.pixels = bytesOf({0, 1, 0, 1, 1, 0, 1, 0, 0, 0, 1, 1, 1, 1, 0, 0});
  return bitmap;
}

// Whatever one damaged byte says, the loader gives a picture of an allowed size or none; ASan watches the
// rest.
TEST(BitmapLoader, SurvivesEveryDamagedByte) {
  BitmapBytes packed = sixteenPixels();
  packed.compression = 1;
  packed.pixels = bytesOf({4, 1, 0, 0, 4, 0, 0, 0, 0, 3, 1, 0, 1, 0, 0, 2, 1, 1, 0, 1});
  for (const std::string& file : {sixteenPixels().file(), packed.file(), fourPixels().file()}) {
    for (std::size_t place = 0; place < file.size(); ++place) {
      for (const std::uint32_t value : {0U, 1U, 2U, 3U, 4U, 8U, 16U, 32U, 64U, 127U, 128U, 255U}) {
        const LoadedBitmap loaded = load(with(file, place, value, 1));
        ASSERT_EQ(loaded.surface == nullptr, loaded.error != BitmapError::none);
        if (loaded.surface != nullptr) {
          ASSERT_LE(loaded.surface->width(), BitmapHeader::maxSide);
          ASSERT_LE(loaded.surface->height(), BitmapHeader::maxSide);
        }
      }
    }
  }
}

TEST(BitmapLoader, NeverReadsBeyondAShortPalette) {
  BitmapBytes bitmap;
  bitmap.width = 2;
  bitmap.height = 1;
  bitmap.bitsPerPixel = 8;
  bitmap.palette = {0xff0000};
  bitmap.pixels = bytesOf({0, 200, 0, 0});
  const LoadedBitmap loaded = load(bitmap.file());
  ASSERT_EQ(loaded.surface == nullptr, loaded.error == BitmapError::invalidData);
  if (loaded.surface != nullptr) {
    EXPECT_EQ(wordsOf(*loaded.surface), (std::vector<std::uint32_t>{0xffff0000U, 0xff000000U}));
  }
  expectInvalid(with(bitmap.file(), placeOfColorCount, 0xffffffffU, 4));
}

TEST(BitmapLoader, RefusesPackedPixelsThatClaimAHugePicture) {
  BitmapBytes bitmap = sixteenPixels();
  bitmap.width = 16384;
  bitmap.height = 16384;
  bitmap.compression = 1;
  bitmap.pixels = bytesOf({0, 1});
  expectInvalid(bitmap.file());
}

}  // namespace
