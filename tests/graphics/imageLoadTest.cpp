// Tests of loading images from files and from the program's own bitmaps.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/image.h"
#include "imageBytes.h"
#include "imageFixture.h"
#include "support/fileSystem.h"

namespace {

class ImageLoadTest : public ImageFixture {
 protected:
  std::string fileOf(const std::string& name, const std::string& content) const {
    std::string path = xplFileSystemMini::joinPath(root(), name);
    writeFile(path, content);
    return path;
  }

  // The file is refused: false, no picture, and the entries that say so.
  void expectRefused(const std::string& path) const {
    xplImage image;
    EXPECT_FALSE(image.initWithFile(path, true));
    EXPECT_EQ(image.getWidth(), 0);
    EXPECT_EQ(image.getHeight(), 0);
    EXPECT_EQ(countEntries("#4653: image.loadFromFile failed:" + path, "ERROR"), 1);
    EXPECT_EQ(entriesThatBegin("        with windows error code:"), 1);
    EXPECT_EQ(countEntries("xplImage.initWithFile() failed to load:[" + path + "]", "ERROR"), 1);
    EXPECT_EQ(entriesThatBegin("xplImage.initWithFile(" + path + ") OK."), 0);
  }
};

// 3 x 2: red, green, blue over black, white, (1, 2, 3); rows from the bottom up, filled to whole words.
BitmapBytes sixPixels() {
  BitmapBytes bitmap;
  bitmap.width = 3;
  bitmap.height = 2;
  bitmap.pixels =
      bytesOf({0, 0, 0, 255, 255, 255, 3, 2, 1, 0, 0, 0, 0, 0, 255, 0, 255, 0, 255, 0, 0, 0, 0, 0});
  return bitmap;
}

const std::vector<xplColor> sixColors{red, green, blue, {0, 0, 0}, {255, 255, 255}, {1, 2, 3}};

TEST_F(ImageLoadTest, AnEmptyFileNameIsRefused) {
  xplImage image;
  EXPECT_FALSE(image.initWithFile("", true));
  EXPECT_EQ(countEntries("xplImage.initWithFile(): empty filename", "ERROR"), 1);
}

TEST_F(ImageLoadTest, AFileThatDoesNotExistIsRefused) {
  xplImage image;
  const std::string path = xplFileSystemMini::joinPath(root(), "absent.bmp");
  EXPECT_FALSE(image.initWithFile(path, true));
  EXPECT_EQ(countEntries("xplImage.initWithFile: file does not exist:[" + path + "]", "ERROR"), 1);
}

TEST_F(ImageLoadTest, AFolderIsNoFile) {
  xplImage image;
  EXPECT_FALSE(image.initWithFile(root(), true));
  EXPECT_EQ(countEntries("xplImage.initWithFile: file does not exist:[" + root() + "]", "ERROR"), 1);
}

TEST_F(ImageLoadTest, ABitmapFileIsLoaded) {
  const std::string path = fileOf("six.bmp", sixPixels().file());
  xplImage image;
  EXPECT_TRUE(image.initWithFile(path, true));
  EXPECT_EQ(image.getWidth(), 3);
  EXPECT_EQ(image.getHeight(), 2);
  EXPECT_EQ(pixelsOf(image), sixColors);
  EXPECT_EQ(countEntries("xplImage.initWithFile(" + path + ") OK. W:3 H:2", "Info"), 1);
}

TEST_F(ImageLoadTest, SuccessIsLoggedOnlyWhenAskedFor) {
  const std::string path = fileOf("six.bmp", sixPixels().file());
  xplImage image;
  EXPECT_TRUE(image.initWithFile(path, false));
  EXPECT_EQ(entriesThatBegin("xplImage.initWithFile("), 0);
}

TEST_F(ImageLoadTest, LoadingIntoAnImageThatHasABitmapIsRefused) {
  const std::string path = fileOf("six.bmp", sixPixels().file());
  xplImage image;
  image.initWithSizeAndColor(1, 1, red);
  EXPECT_FALSE(image.initWithFile(path, true));
  EXPECT_EQ(countEntries("xplImageWin.initWithFile(" + path + ") called but hBitmap not null", "ERROR"), 1);
  EXPECT_EQ(countEntries("xplImage.initWithFile() failed to load:[" + path + "]", "ERROR"), 1);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>{red});
}

// Its pixels are not compared: LoadImageA of Wine 8 leaves a top-down picture black.
TEST_F(ImageLoadTest, ATopDownBitmapHasAPositiveHeight) {
  BitmapBytes bitmap = sixPixels();
  bitmap.height = -2;
  bitmap.pixels = bitmap.pixels.substr(12) + bitmap.pixels.substr(0, 12);
  xplImage image;
  EXPECT_TRUE(image.initWithFile(fileOf("down.bmp", bitmap.file()), false));
  EXPECT_EQ(image.getWidth(), 3);
  EXPECT_EQ(image.getHeight(), 2);
}

TEST_F(ImageLoadTest, BitmapsOfEveryDepthAreLoaded) {
  const std::vector<std::uint32_t> palette{0xff0000, 0x00ff00, 0x0000ff, 0x010203};
  const std::vector<std::uint32_t> twoColors{0xff0000, 0x0000ff};
  struct Case {
    int bits;
    std::vector<std::uint32_t> palette;
    std::string pixels;
    std::vector<xplColor> expected;
  };
  for (const Case& depth : std::vector<Case>{
           {1, twoColors, bytesOf({0x40, 0, 0, 0}), {red, blue, red}},
           {4, palette, bytesOf({0x01, 0x30, 0, 0}), {red, green, {1, 2, 3}}},
           {8, palette, bytesOf({3, 2, 1, 0}), {{1, 2, 3}, blue, green}},
           // Five bits a channel, the highest repeated below: 4 becomes 33.
           {16, {}, bytesOf({0x00, 0x7c, 0xe0, 0x03, 0x84, 0x10, 0, 0}), {red, green, {33, 33, 33}}},
           {24, {}, bytesOf({0, 0, 255, 0, 255, 0, 9, 8, 7, 0, 0, 0}), {red, green, {7, 8, 9}}},
           {32, {}, bytesOf({0, 0, 255, 0, 0, 255, 0, 128, 9, 8, 7, 255}), {red, green, {7, 8, 9}}}}) {
    BitmapBytes bitmap;
    bitmap.width = 3;
    bitmap.height = 1;
    bitmap.bitsPerPixel = depth.bits;
    bitmap.palette = depth.palette;
    bitmap.pixels = depth.pixels;
    xplImage image;
    EXPECT_TRUE(image.initWithFile(fileOf(std::to_string(depth.bits) + ".bmp", bitmap.file()), false));
    EXPECT_EQ(pixelsOf(image), depth.expected) << depth.bits;
  }
}

TEST_F(ImageLoadTest, ChannelMasksAreFollowed) {
  BitmapBytes bitmap;
  bitmap.width = 3;
  bitmap.height = 1;
  bitmap.bitsPerPixel = 16;
  bitmap.compression = 3;
  bitmap.palette = {0xf800, 0x07e0, 0x001f};
  bitmap.pixels = bytesOf({0x00, 0xf8, 0xe0, 0x07, 0x82, 0x10, 0, 0});
  xplImage image;
  EXPECT_TRUE(image.initWithFile(fileOf("565.bmp", bitmap.file()), false));
  EXPECT_EQ(pixelsOf(image), (std::vector<xplColor>{red, green, {16, 16, 16}}));
}

TEST_F(ImageLoadTest, APngFileIsRefused) {
  expectRefused(
      fileOf("picture.png", bytesOf({0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13, 'I', 'H', 'D',
                                     'R',  0,   0,   0,   1,  0,  0,  0,  1, 8, 2, 0,  0,   0}) +
                                std::string(100, '\0')));
}

TEST_F(ImageLoadTest, AJpegFileIsRefused) {
  expectRefused(fileOf("picture.jpg", bytesOf({0xff, 0xd8, 0xff, 0xe0, 0, 16, 'J', 'F', 'I', 'F',
                                               0,    1,    1,    0,    0, 1,  0,   1,   0,   0}) +
                                          std::string(100, '\0')));
}

TEST_F(ImageLoadTest, AnEmptyFileIsRefused) {
  expectRefused(fileOf("empty.bmp", ""));
}

TEST_F(ImageLoadTest, ARefusedFileLeavesTheImageReadyForAnother) {
  xplImage image;
  EXPECT_FALSE(image.initWithFile(fileOf("empty.bmp", ""), false));
  EXPECT_TRUE(image.initWithFile(fileOf("six.bmp", sixPixels().file()), false));
  EXPECT_EQ(pixelsOf(image), sixColors);
}

TEST_F(ImageLoadTest, AResourceIsLoaded) {
  xplImage image;
  EXPECT_TRUE(image.initWithResource(124));
  EXPECT_GT(image.getWidth(), 1);
  EXPECT_GT(image.getHeight(), 1);
  EXPECT_EQ(logText().find("ERROR"), std::string::npos);
}

TEST_F(ImageLoadTest, AnUnknownResourceIsRefused) {
  xplImage image;
  EXPECT_FALSE(image.initWithResource(9999));
  EXPECT_EQ(image.getWidth(), 0);
  EXPECT_EQ(
      countEntries("#4653b: image.initWithResource_impl failed:9999 with windows error code:1814", "ERROR"),
      1);
}

TEST_F(ImageLoadTest, AResourceIntoAnImageThatHasABitmapIsRefused) {
  xplImage image;
  image.initWithSizeAndColor(1, 1, red);
  EXPECT_FALSE(image.initWithResource(124));
  EXPECT_EQ(countEntries("xplImageWin.initWithResource_impl(124) called but hBitmap not null", "ERROR"), 1);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>{red});
}

}  // namespace
