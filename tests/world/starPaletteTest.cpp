// What the pictures of the stars look like, and when they are made.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "starPictureFixture.h"

namespace {

// Red, green and blue of every pixel, worked out in fractions.
using Picture = std::uint32_t[7][7];

void expectPicture(const Picture& expected, xplImage& image) {
  for (int y = 0; y < 7; ++y) {
    for (int x = 0; x < 7; ++x) {
      ASSERT_EQ(expected[y][x], image.getPixel(x, y).value() >> 8) << x << ", " << y;
    }
  }
}

}  // namespace

TEST_F(Palette, PixelsOfKnownBrightnesses) {
  const auto star = makeStar(0.2F);
  TstarImageBinder::Quadrant pixels;
  star->makeStarPixels(1.0F, pixels);
  EXPECT_EQ(xplColor(255, 255, 255), pixels[0][0]);
  EXPECT_EQ(xplColor(0, 0, 0), pixels[2][2]);
  star->makeStarPixels(0.1F, pixels);
  EXPECT_EQ(xplColor(178, 178, 249), pixels[0][0]);
  EXPECT_EQ(xplColor(0, 0, 0), pixels[1][0]) << "below zero at a distance";
  star->makeStarPixels(0.3F, pixels);
  EXPECT_EQ(xplColor(44, 44, 61), pixels[1][0]);
  EXPECT_EQ(xplColor(7, 7, 28), pixels[1][1]);
}

TEST_F(Palette, MirrorsTheQuadrantInAllPictures) {
  TstarImageBinder binder(cStarSpriteWithPixels::starPixels);
  for (int k = 0; k < 100; ++k) {
    xplImage& image = binder.getImageOf(k);
    ASSERT_EQ(7, image.getWidth());
    ASSERT_EQ(7, image.getHeight());
    for (int y = 0; y < 7; ++y) {
      for (int x = 0; x < 7; ++x) {
        const int dx = std::abs(x - 3);
        const int dy = std::abs(y - 3);
        ASSERT_EQ(expectedPixel(static_cast<float>(k) / 100.0F, std::max(dx, dy), std::min(dx, dy)).value(),
                  image.getPixel(x, y).value())
            << k << ": " << x << ", " << y;
      }
    }
  }
  EXPECT_EQ(1, countEntries("cImageBinder initializing 100 images"));
}

TEST_F(Palette, Picture62) {
  constexpr Picture expected = {
      {0x000000, 0x000000, 0x000000, 0x000000, 0x000000, 0x000000, 0x000000},
      {0x000000, 0x000000, 0x080820, 0x474763, 0x080820, 0x000000, 0x000000},
      {0x000000, 0x080820, 0x3737dc, 0xffffff, 0x3737dc, 0x080820, 0x000000},
      {0x000000, 0x474763, 0xffffff, 0xffffff, 0xffffff, 0x474763, 0x000000},
      {0x000000, 0x080820, 0x3737dc, 0xffffff, 0x3737dc, 0x080820, 0x000000},
      {0x000000, 0x000000, 0x080820, 0x474763, 0x080820, 0x000000, 0x000000},
      {0x000000, 0x000000, 0x000000, 0x000000, 0x000000, 0x000000, 0x000000},
  };
  TstarImageBinder binder(cStarSpriteWithPixels::starPixels);
  expectPicture(expected, binder.getImageOf(62));
}

TEST_F(Palette, Picture99) {
  constexpr Picture expected = {
      {0x000000, 0x000000, 0x000000, 0x6b6b95, 0x000000, 0x000000, 0x000000},
      {0x000000, 0x000000, 0x242490, 0xffffff, 0x242490, 0x000000, 0x000000},
      {0x000000, 0x242490, 0x6e6eff, 0xffffff, 0x6e6eff, 0x242490, 0x000000},
      {0x6b6b95, 0xffffff, 0xffffff, 0xffffff, 0xffffff, 0xffffff, 0x6b6b95},
      {0x000000, 0x242490, 0x6e6eff, 0xffffff, 0x6e6eff, 0x242490, 0x000000},
      {0x000000, 0x000000, 0x242490, 0xffffff, 0x242490, 0x000000, 0x000000},
      {0x000000, 0x000000, 0x000000, 0x6b6b95, 0x000000, 0x000000, 0x000000},
  };
  TstarImageBinder binder(cStarSpriteWithPixels::starPixels);
  expectPicture(expected, binder.getImageOf(99));
}

TEST_F(Palette, AnswersWrongIndexesWithTheNearestPicture) {
  TstarImageBinder binder(cStarSpriteWithPixels::starPixels);
  EXPECT_EQ(&binder.getImageOf(99), &binder.getImageOf(100));
  EXPECT_EQ(&binder.getImageOf(0), &binder.getImageOf(-5));
  EXPECT_EQ(1, countEntries("getImageOf out of range>1 :100"));
  EXPECT_EQ(1, countEntries("getImageOf out of range>1 :-5"));
}

TEST_F(Palette, IsMadeWithTheFirstStarAndDestroyedWithTheLast) {
  for (int round = 1; round <= 2; ++round) {
    auto first = makeStar(0.1F);
    auto second = makeStar(0.1F);
    EXPECT_EQ(round, countEntries("First cStarSpriteWithPixels create. Will create cStarPalette\n"));
    EXPECT_EQ(round, countEntries("TstarImageBinder created"));
    first.reset();
    EXPECT_EQ(round - 1, countEntries("Last cStarSpriteWithPixels destroy. Destroyed cStarPalette\n"));
    second.reset();
    EXPECT_EQ(round, countEntries("Last cStarSpriteWithPixels destroy. Destroyed cStarPalette\n"));
  }
}

TEST_F(Palette, KeptItsTwoEntriesAreFollowedByAnEmptyLine) {
  makeStar(0.1F).reset();
  const std::string log = logText();
  EXPECT_NE(std::string::npos,
            log.find("Will create cStarPalette\n\nInfo>\tcImageBinder initializing 100 images\n"));
  EXPECT_NE(std::string::npos, log.find("Destroyed cStarPalette\n\n"));
}

TEST_F(Palette, LogsItsMakingInOrder) {
  const std::size_t before = logEntries().size();
  const auto star = makeStar(0.1F);
  const auto second = makeStar(0.1F);
  const auto entries = logEntries();
  EXPECT_EQ((std::vector<std::string>{"First cStarSpriteWithPixels create. Will create cStarPalette\n",
                                      "cImageBinder initializing 100 images", "TstarImageBinder created"}),
            std::vector<std::string>(entries.begin() + static_cast<std::ptrdiff_t>(before), entries.end()));
}
