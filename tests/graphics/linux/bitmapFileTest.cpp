// Tests of a bitmap's head, and of loading a bitmap from a file and from the program.
#include <cstdint>
#include <string>
#include <vector>

#include "fourPixels.h"
#include "graphics/linux/bitmapHeader.h"
#include "graphics/linux/bitmapLoader.h"
#include "harness/privateFolders.h"

namespace {

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
