// Tests of images: making, loading, reading, writing, scaling, cropping and drawing on the window.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/image.h"
#include "graphics/window.h"
#include "harness/privateFolders.h"
#include "imageBytes.h"
#include "support/fileSystem.h"
#include "windowharness/testWindow.h"

namespace {

constexpr xplColor red(255, 0, 0);
constexpr xplColor green(0, 255, 0);
constexpr xplColor blue(0, 0, 255);
constexpr xplColor outside(255, 228, 181);

class ImageTest : public PrivateFolders {
 protected:
  std::string fileOf(const std::string& name, const std::string& content) const {
    const std::string path = xplFileSystemMini::joinPath(root(), name);
    writeFile(path, content);
    return path;
  }

  int entriesThatBegin(const std::string& start) const {
    int count = 0;
    for (const std::string& entry : logEntries()) {
      count += entry.rfind(start, 0) == 0 ? 1 : 0;
    }
    return count;
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

// Every pixel, row by row.
std::vector<xplColor> pixelsOf(xplImage& image) {
  std::vector<xplColor> pixels;
  for (int y = 0; y < image.getHeight(); ++y) {
    for (int x = 0; x < image.getWidth(); ++x) {
      pixels.push_back(image.getPixel(x, y));
    }
  }
  return pixels;
}

// Each pixel tells its place: red is its column, green its row.
void fillWithPlaces(xplImage& image, int width, int height) {
  image.initWithSizeAndColor(width, height, {});
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      image.setPixel(x, y, xplColor(static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 7));
    }
  }
}

xplColor place(int x, int y) {
  return xplColor(static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 7);
}

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

TEST_F(ImageTest, AnImageWithoutBitmapIsEmpty) {
  xplImage image;
  EXPECT_EQ(image.getWidth(), 0);
  EXPECT_EQ(image.getHeight(), 0);
  EXPECT_EQ(image.getPixel(0, 0), outside);
  image.setPixel(0, 0, red);
  image.amplifyPixel(0, 0, 2, 2, 2);
  image.drawText(0, 0, "abc", {});
  image.resizeTo(5, 5);
  image.crop(0, 0, 0, 0);
  image.scaleBy(2.0F);
  EXPECT_EQ(image.getWidth(), 0);
}

TEST_F(ImageTest, ANewImageHasTheSizeAndIsFilledWithTheColor) {
  xplImage image;
  image.initWithSizeAndColor(4, 3, xplColor(10, 20, 30, 40));
  EXPECT_EQ(image.getWidth(), 4);
  EXPECT_EQ(image.getHeight(), 3);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(12, xplColor(10, 20, 30, 255)));
  EXPECT_EQ(logText().find("ERROR"), std::string::npos);
}

TEST_F(ImageTest, MakingAnImageAnewIsReportedAndDone) {
  xplImage image;
  image.initWithSizeAndColor(4, 3, red);
  image.initWithSizeAndColor(2, 5, blue);
  EXPECT_EQ(countEntries("xplImageWin.initWithSizeAndColor() called but m_GDIHBitmap not null", "ERROR"), 1);
  EXPECT_EQ(image.getWidth(), 2);
  EXPECT_EQ(image.getHeight(), 5);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(10, blue));
}

TEST_F(ImageTest, ASizeThatNoPictureCanHaveIsReportedAndChangesNothing) {
  xplImage image;
  image.initWithSizeAndColor(2, 2, red);
  for (const auto& [width, height] : {std::pair{0, 5},
                                      {5, 0},
                                      {-5, 5},
                                      {5, -5},
                                      {32768, 1},
                                      {1, 32768},
                                      {32767, 32767},
                                      {2147483647, 2147483647}}) {
    xplImage fresh;
    fresh.initWithSizeAndColor(width, height, red);
    EXPECT_EQ(fresh.getWidth(), 0);
    image.resizeTo(width, height);
    EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(4, red));
    const std::string size = " got no bitmap of w=" + std::to_string(width) + ", h=" + std::to_string(height);
    EXPECT_EQ(countEntries("xplImageWin.initWithSizeAndColor()" + size, "ERROR"), 1);
    EXPECT_EQ(countEntries("xplImageWin.resizeTo_impl()" + size, "ERROR"), 1);
  }
}

TEST_F(ImageTest, PixelsOutsideHaveTheColorThatStandsForOutside) {
  xplImage image;
  image.initWithSizeAndColor(4, 3, red);
  for (const auto& [x, y] :
       {std::pair{-1, 0}, {4, 0}, {0, -1}, {0, 3}, {-2147483647 - 1, 0}, {0, 2147483647}}) {
    EXPECT_EQ(image.getPixel(x, y), outside) << x << ' ' << y;
    image.setPixel(x, y, blue);
  }
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(12, red));
}

TEST_F(ImageTest, SetPixelChangesThatPixelOnly) {
  xplImage image;
  image.initWithSizeAndColor(2, 2, red);
  image.setPixel(1, 0, xplColor(1, 2, 3, 4));
  EXPECT_EQ(pixelsOf(image), (std::vector<xplColor>{red, {1, 2, 3, 255}, red, red}));
}

TEST_F(ImageTest, AmplifyPixelMultipliesTheChannels) {
  xplImage image;
  image.initWithSizeAndColor(2, 1, xplColor(200, 100, 10));
  image.amplifyPixel(0, 0, 2.0F, 2.0F, 2.0F);
  EXPECT_EQ(pixelsOf(image), (std::vector<xplColor>{{255, 200, 20}, {200, 100, 10}}));
}

TEST_F(ImageTest, TextIsDrawnOverThePicture) {
  xplImage image;
  image.initWithSizeAndColor(40, 20, blue);
  xplTextDrawingInfo info;
  info.color = red;
  info.nonAntialiased = 1;
  image.drawText(1, 1, "H", info);
  int ofText = 0;
  for (const xplColor color : pixelsOf(image)) {
    EXPECT_TRUE(color == red || color == blue);
    ofText += color == red ? 1 : 0;
  }
  EXPECT_GT(ofText, 10);
}

TEST_F(ImageTest, AnEmptyFileNameIsRefused) {
  xplImage image;
  EXPECT_FALSE(image.initWithFile("", true));
  EXPECT_EQ(countEntries("xplImage.initWithFile(): empty filename", "ERROR"), 1);
}

TEST_F(ImageTest, AFileThatDoesNotExistIsRefused) {
  xplImage image;
  const std::string path = xplFileSystemMini::joinPath(root(), "absent.bmp");
  EXPECT_FALSE(image.initWithFile(path, true));
  EXPECT_EQ(countEntries("xplImage.initWithFile: file does not exist:[" + path + "]", "ERROR"), 1);
}

TEST_F(ImageTest, AFolderIsNoFile) {
  xplImage image;
  EXPECT_FALSE(image.initWithFile(root(), true));
  EXPECT_EQ(countEntries("xplImage.initWithFile: file does not exist:[" + root() + "]", "ERROR"), 1);
}

TEST_F(ImageTest, ABitmapFileIsLoaded) {
  const std::string path = fileOf("six.bmp", sixPixels().file());
  xplImage image;
  EXPECT_TRUE(image.initWithFile(path, true));
  EXPECT_EQ(image.getWidth(), 3);
  EXPECT_EQ(image.getHeight(), 2);
  EXPECT_EQ(pixelsOf(image), sixColors);
  EXPECT_EQ(countEntries("xplImage.initWithFile(" + path + ") OK. W:3 H:2", "Info"), 1);
}

TEST_F(ImageTest, SuccessIsLoggedOnlyWhenAskedFor) {
  const std::string path = fileOf("six.bmp", sixPixels().file());
  xplImage image;
  EXPECT_TRUE(image.initWithFile(path, false));
  EXPECT_EQ(entriesThatBegin("xplImage.initWithFile("), 0);
}

TEST_F(ImageTest, LoadingIntoAnImageThatHasABitmapIsRefused) {
  const std::string path = fileOf("six.bmp", sixPixels().file());
  xplImage image;
  image.initWithSizeAndColor(1, 1, red);
  EXPECT_FALSE(image.initWithFile(path, true));
  EXPECT_EQ(countEntries("xplImageWin.initWithFile(" + path + ") called but hBitmap not null", "ERROR"), 1);
  EXPECT_EQ(countEntries("xplImage.initWithFile() failed to load:[" + path + "]", "ERROR"), 1);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>{red});
}

// Its pixels are not compared: LoadImageA of Wine 8 leaves a top-down picture black.
TEST_F(ImageTest, ATopDownBitmapHasAPositiveHeight) {
  BitmapBytes bitmap = sixPixels();
  bitmap.height = -2;
  bitmap.pixels = bitmap.pixels.substr(12) + bitmap.pixels.substr(0, 12);
  xplImage image;
  EXPECT_TRUE(image.initWithFile(fileOf("down.bmp", bitmap.file()), false));
  EXPECT_EQ(image.getWidth(), 3);
  EXPECT_EQ(image.getHeight(), 2);
}

TEST_F(ImageTest, BitmapsOfEveryDepthAreLoaded) {
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

TEST_F(ImageTest, ChannelMasksAreFollowed) {
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

TEST_F(ImageTest, APngFileIsRefused) {
  expectRefused(
      fileOf("picture.png", bytesOf({0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13, 'I', 'H', 'D',
                                     'R',  0,   0,   0,   1,  0,  0,  0,  1, 8, 2, 0,  0,   0}) +
                                std::string(100, '\0')));
}

TEST_F(ImageTest, AJpegFileIsRefused) {
  expectRefused(fileOf("picture.jpg", bytesOf({0xff, 0xd8, 0xff, 0xe0, 0, 16, 'J', 'F', 'I', 'F',
                                               0,    1,    1,    0,    0, 1,  0,   1,   0,   0}) +
                                          std::string(100, '\0')));
}

TEST_F(ImageTest, AnEmptyFileIsRefused) {
  expectRefused(fileOf("empty.bmp", ""));
}

TEST_F(ImageTest, ARefusedFileLeavesTheImageReadyForAnother) {
  xplImage image;
  EXPECT_FALSE(image.initWithFile(fileOf("empty.bmp", ""), false));
  EXPECT_TRUE(image.initWithFile(fileOf("six.bmp", sixPixels().file()), false));
  EXPECT_EQ(pixelsOf(image), sixColors);
}

TEST_F(ImageTest, AResourceIsLoaded) {
  xplImage image;
  EXPECT_TRUE(image.initWithResource(124));
  EXPECT_GT(image.getWidth(), 1);
  EXPECT_GT(image.getHeight(), 1);
  EXPECT_EQ(logText().find("ERROR"), std::string::npos);
}

TEST_F(ImageTest, AnUnknownResourceIsRefused) {
  xplImage image;
  EXPECT_FALSE(image.initWithResource(9999));
  EXPECT_EQ(image.getWidth(), 0);
  EXPECT_EQ(
      countEntries("#4653b: image.initWithResource_impl failed:9999 with windows error code:1814", "ERROR"),
      1);
}

TEST_F(ImageTest, AResourceIntoAnImageThatHasABitmapIsRefused) {
  xplImage image;
  image.initWithSizeAndColor(1, 1, red);
  EXPECT_FALSE(image.initWithResource(124));
  EXPECT_EQ(countEntries("xplImageWin.initWithResource_impl(124) called but hBitmap not null", "ERROR"), 1);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>{red});
}

TEST_F(ImageTest, ResizingDropsAndRepeatsPixels) {
  xplImage image;
  fillWithPlaces(image, 4, 2);
  image.resizeTo(8, 2);
  ASSERT_EQ(image.getWidth(), 8);
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 8; ++x) {
      EXPECT_EQ(image.getPixel(x, y), place(x / 2, y)) << x << ' ' << y;
    }
  }
  EXPECT_EQ(countEntries("xplImageWin.resizeTo_impl() exiting with new w=8, new h=2", "Info"), 1);
}

TEST_F(ImageTest, ResizingToTheSameSizeDoesNothing) {
  xplImage image;
  fillWithPlaces(image, 4, 2);
  image.resizeTo(4, 2);
  EXPECT_EQ(entriesThatBegin("xplImageWin.resizeTo_impl()"), 0);
  image.resizeTo(4, 1);
  EXPECT_EQ(entriesThatBegin("xplImageWin.resizeTo_impl()"), 1);
  EXPECT_EQ(image.getHeight(), 1);
}

TEST_F(ImageTest, ScalingTruncatesTheNewSize) {
  xplImage image;
  image.initWithSizeAndColor(5, 3, red);
  image.scaleBy(0.7F);
  EXPECT_EQ(image.getWidth(), 3);
  EXPECT_EQ(image.getHeight(), 2);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(6, red));
}

TEST_F(ImageTest, ScalingToNothingOrBeyondEverythingChangesNothing) {
  xplImage image;
  image.initWithSizeAndColor(5, 3, red);
  for (const float factor : {0.0F, -1.0F, 1e30F, -1e30F}) {
    image.scaleBy(factor);
    EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(15, red)) << factor;
  }
}

TEST_F(ImageTest, CroppingKeepsTheRegion) {
  xplImage image;
  fillWithPlaces(image, 6, 6);
  image.crop(1, 2, 3, 4);
  ASSERT_EQ(image.getWidth(), 3);
  ASSERT_EQ(image.getHeight(), 4);
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 3; ++x) {
      EXPECT_EQ(image.getPixel(x, y), place(x + 1, y + 2)) << x << ' ' << y;
    }
  }
}

TEST_F(ImageTest, CroppingBeyondTheEdgeGivesBlackThere) {
  xplImage image;
  image.initWithSizeAndColor(4, 4, red);
  image.crop(2, 3, 3, 2);
  const xplColor black(0, 0, 0);
  EXPECT_EQ(pixelsOf(image), (std::vector<xplColor>{red, red, black, black, black, black}));
}

TEST_F(ImageTest, CroppingToTheWholeSizeOrMoreDoesNothing) {
  xplImage image;
  fillWithPlaces(image, 6, 6);
  for (const auto& [width, height] : {std::pair{6, 3}, {3, 6}, {7, 1}, {-1, 3}, {3, -1}}) {
    image.crop(0, 0, width, height);
    EXPECT_EQ(image.getWidth(), 6);
    EXPECT_EQ(image.getHeight(), 6);
  }
  EXPECT_EQ(logText().find("ERROR"), std::string::npos);
}

TEST_F(ImageTest, CroppingToNothingIsReportedAndChangesNothing) {
  xplImage image;
  image.initWithSizeAndColor(2, 2, red);
  image.crop(0, 0, 0, 1);
  EXPECT_EQ(countEntries("xplImageWin.crop_impl() got no bitmap of w=0, h=1", "ERROR"), 1);
  EXPECT_EQ(pixelsOf(image), std::vector<xplColor>(4, red));
}

TEST_F(ImageTest, KeptCropComparesTheLeftEdgeWithTheHeight) {
  xplImage image;
  fillWithPlaces(image, 100, 50);
  for (const int x : {50, 60, 99}) {
    image.crop(x, 0, 10, 10);
    EXPECT_EQ(image.getWidth(), 100) << x;
  }
  image.crop(49, 0, 10, 10);
  EXPECT_EQ(image.getWidth(), 10);
  EXPECT_EQ(image.getPixel(0, 0), place(49, 0));
}

TEST_F(ImageTest, KeptCropComparesTheTopEdgeWithTheWidth) {
  xplImage tall;
  fillWithPlaces(tall, 50, 100);
  for (const int y : {50, 60, 99}) {
    tall.crop(0, y, 10, 10);
    EXPECT_EQ(tall.getHeight(), 100) << y;
  }
  tall.crop(0, 49, 10, 10);
  EXPECT_EQ(tall.getPixel(0, 0), place(0, 49));

  xplImage wide;
  wide.initWithSizeAndColor(100, 50, red);
  wide.crop(0, 60, 10, 10);  // below the picture, yet allowed
  EXPECT_EQ(pixelsOf(wide), std::vector<xplColor>(100, xplColor(0, 0, 0)));
}

class ImageOnWindowTest : public ImageTest {
 protected:
  void SetUp() override { m_window.fillRect(xplRect<int>(0, 0, 8, 6), blue); }

  // Every pixel of the window, row by row; 'r', 'g' and 'b' for the three colours, '?' for any other.
  std::string shown() {
    std::string text;
    for (int y = 0; y < 6; ++y) {
      for (int x = 0; x < 8; ++x) {
        const xplColor color = m_window.getPixel(x, y);
        text += color == red ? 'r' : color == green ? 'g' : color == blue ? 'b' : '?';
      }
      text += '\n';
    }
    return text;
  }

  TestWindow m_native{8, 6};
  xplWindow m_window{m_native.handle()};
};

TEST_F(ImageOnWindowTest, AnImageIsDrawnWholeAtItsPlace) {
  xplImage image;
  image.initWithSizeAndColor(3, 2, red);
  image.setPixel(1, 0, green);
  image.drawOnWindow(m_window, 2, 1);
  EXPECT_EQ(shown(),
            "bbbbbbbb\n"
            "bbrgrbbb\n"
            "bbrrrbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n");
}

TEST_F(ImageOnWindowTest, PixelsOfTheTransparentColorAreLeftOut) {
  xplImage image;
  image.initWithSizeAndColor(3, 2, red);
  image.setPixel(1, 0, green);
  image.setPixel(0, 1, xplColor(254, 0, 0));
  image.setTransparentColor(red);
  image.drawOnWindow(m_window, 2, 1);
  EXPECT_EQ(shown(),
            "bbbbbbbb\n"
            "bbbgbbbb\n"
            "bb?bbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n");
}

TEST_F(ImageOnWindowTest, AnImageAcrossTheEdgesIsClipped) {
  xplImage image;
  image.initWithSizeAndColor(4, 4, red);
  image.drawOnWindow(m_window, -2, -3);
  image.drawOnWindow(m_window, 7, 4);
  EXPECT_EQ(shown(),
            "rrbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbr\n"
            "bbbbbbbr\n");
}

TEST_F(ImageOnWindowTest, AnImageWithoutBitmapDrawsNothing) {
  xplImage image;
  image.drawOnWindow(m_window, 0, 0);
  image.setTransparentColor(red);
  image.drawOnWindow(m_window, 0, 0);
  EXPECT_EQ(shown().find_first_not_of("b\n"), std::string::npos);
}

TEST_F(ImageOnWindowTest, DrawingGoesToTheWindowItselfWithoutTheBackBuffer) {
  xplImage image;
  image.initWithSizeAndColor(2, 2, red);
  m_window.setUseBackBuffer(false);
  image.drawOnWindow(m_window, 0, 0);
  m_window.setUseBackBuffer(true);
  EXPECT_EQ(shown().find('r'), std::string::npos);
}

}  // namespace
