// Tests of the bitmap loader with hand-made files, most of them broken.
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "../imageBytes.h"
#include "graphics/linux/bitmapHeader.h"
#include "graphics/linux/bitmapLoader.h"
#include "harness/privateFolders.h"

namespace {

LoadedBitmap load(const std::string& file) {
  const std::vector<std::uint8_t> bytes(file.begin(),
                                        file.end());  // exactly as long, so that ASan sees over-reads
  return loadBitmapBytes(bytes);
}

// 2 x 2: red and green over blue and white, rows from the bottom up.
BitmapBytes fourPixels() {
  BitmapBytes bitmap;
  bitmap.width = 2;
  bitmap.height = 2;
  bitmap.pixels = bytesOf({255, 0, 0, 255, 255, 255, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0});
  return bitmap;
}

std::vector<std::uint32_t> wordsOf(const Surface& surface) {
  std::vector<std::uint32_t> words;
  for (int y = 0; y < surface.height(); ++y) {
    const std::uint32_t* row = surface.pixels() + static_cast<std::size_t>(y) * surface.stride();
    words.insert(words.end(), row, row + surface.width());
  }
  return words;
}

const std::vector<std::uint32_t> fourWords{0xffff0000U, 0xff00ff00U, 0xff0000ffU, 0xffffffffU};

void expectInvalid(const std::string& file) {
  const LoadedBitmap loaded = load(file);
  EXPECT_EQ(loaded.surface, nullptr);
  EXPECT_EQ(loaded.error, BitmapError::invalidData);
}

// The file with another number at a place of its head.
std::string with(std::string file, std::size_t place, std::uint32_t value, int count) {
  return file.replace(place, static_cast<std::size_t>(count), littleEndian(value, count));
}

constexpr std::size_t placeOfOffset = 10;
constexpr std::size_t placeOfInfoSize = 14;
constexpr std::size_t placeOfWidth = 18;
constexpr std::size_t placeOfHeight = 22;
constexpr std::size_t placeOfDepth = 28;
constexpr std::size_t placeOfColorCount = 46;

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

TEST(BitmapHeaderTest, TellsSizeAndDepth) {
  const std::string file = with(fourPixels().file(), placeOfHeight, 0U - 2U, 4);
  const std::vector<std::uint8_t> bytes(file.begin(), file.end());
  const auto header = parseBitmapHeader(bytes, bytes.size());
  ASSERT_TRUE(header.has_value());
  EXPECT_EQ(header->width, 2);
  EXPECT_EQ(header->height, 2);
  EXPECT_EQ(header->bitsPerPixel, 24);
}

TEST(BitmapHeaderTest, AllowsTheLargestPictureAndNoLarger) {
  const auto isAllowed = [](std::uint32_t width, std::uint32_t height) {
    const std::string file =
        with(with(fourPixels().file(), placeOfWidth, width, 4), placeOfHeight, height, 4);
    const std::vector<std::uint8_t> bytes(file.begin(), file.end());
    return parseBitmapHeader(bytes, std::uint64_t{1} << 40).has_value();
  };
  EXPECT_TRUE(isAllowed(8192, 8192));
  EXPECT_TRUE(isAllowed(16384, 4096));
  EXPECT_FALSE(isAllowed(8192, 8193));
  EXPECT_FALSE(isAllowed(16385, 1));
  EXPECT_FALSE(isAllowed(16384, 16384));
}

class BitmapFileTest : public PrivateFolders {};

TEST_F(BitmapFileTest, LoadsAFile) {
  const std::string path = root() + "/four.bmp";
  writeFile(path, fourPixels().file());
  const LoadedBitmap loaded = loadBitmapFile(path);
  ASSERT_NE(loaded.surface, nullptr);
  EXPECT_EQ(wordsOf(*loaded.surface), fourWords);
}

TEST_F(BitmapFileTest, TellsThatAFileCannotBeOpened) {
  const LoadedBitmap loaded = loadBitmapFile(root() + "/absent.bmp");
  EXPECT_EQ(loaded.surface, nullptr);
  EXPECT_EQ(loaded.error, BitmapError::cannotOpen);
}

TEST_F(BitmapFileTest, TellsThatAFileIsNoBitmap) {
  const std::string path = root() + "/text.bmp";
  writeFile(path, "This is not a picture.");
  EXPECT_EQ(loadBitmapFile(path).error, BitmapError::invalidData);
}

TEST(BitmapResourceTest, TellsThatThereIsNoSuchResource) {
  const LoadedBitmap loaded = loadBitmapResource(9999);
  EXPECT_EQ(loaded.surface, nullptr);
  EXPECT_EQ(loaded.error, BitmapError::noSuchResource);
}

}  // namespace
