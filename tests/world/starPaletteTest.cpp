// What the pictures of the stars look like, and how stars draw them.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "windowharness/testWindow.h"
#include "world/starWithPixels.h"

namespace {

using Palette = PrivateFolders;

std::unique_ptr<cStarSpriteWithPixels> makeStar(float brightness) {
  return std::make_unique<cStarSpriteWithPixels>(2.0F, "normal star", brightness, 0.0F, 100.0F);
}

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

// The pixel of a star computed apart from the program, in whole steps of the rule.
xplColor expectedPixel(float brightness, int i, int j) {
  if (i + j >= 4) {
    return {0, 0, 0};
  }
  float v = (brightness - 0.25F * static_cast<float>(i)) * 255.0F * 7.0F / static_cast<float>(i + j + 1);
  const bool offAxis = i > 0 && j > 0;
  if (offAxis) {
    v = v * 0.5F / static_cast<float>(i + j);
  }
  const int c = v < 0.0F ? 0 : v > 255.0F ? 255 : static_cast<int>(v);
  const float blue = static_cast<float>(c) * (offAxis ? 4.0F : 1.4F);
  return {static_cast<std::uint8_t>(c), static_cast<std::uint8_t>(c),
          static_cast<std::uint8_t>(blue > 255.0F ? 255.0F : blue)};
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

// Red, green and blue of every pixel, worked out in fractions.
using Picture = std::uint32_t[7][7];

void expectPicture(const Picture& expected, xplImage& image) {
  for (int y = 0; y < 7; ++y) {
    for (int x = 0; x < 7; ++x) {
      ASSERT_EQ(expected[y][x], image.getPixel(x, y).value() >> 8) << x << ", " << y;
    }
  }
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

// A window of 20 x 20 pixels on which stars are drawn at (5.9, 6.2).
class StarCanvas {
 public:
  explicit StarCanvas(xplColor sky) { m_window.fillRect(xplRect<int>(0, 0, 20, 20), sky); }
  void draw(cStarSpriteWithPixels& star) {
    star.setRenderWindow(&m_window);
    star.x = 5.9F;
    star.y = 6.2F;
    star.draw();
  }
  xplColor at(int x, int y) { return m_window.getPixel(x, y); }
  // Every pixel is that of the star of this brightness in the sky, whose middle is at (8, 9).
  void expectStar(float brightness, xplColor sky) {
    for (int y = 0; y < 20; ++y) {
      for (int x = 0; x < 20; ++x) {
        const int dx = std::abs(x - 8);
        const int dy = std::abs(y - 9);
        const xplColor star = dx <= 3 && dy <= 3
                                  ? expectedPixel(brightness, std::max(dx, dy), std::min(dx, dy))
                                  : xplColor(0, 0, 0);
        ASSERT_EQ((star == xplColor(0, 0, 0) ? sky : star).value(), at(x, y).value()) << x << ", " << y;
      }
    }
  }

 private:
  TestWindow m_native{20, 20};
  xplWindow m_window{m_native.handle()};
};

constexpr xplColor black(0, 0, 0);

TEST_F(Palette, KeptPictureKIsPaintedForKHundredthsWhileAStarPicksIts99th) {
  // 0.5 * 99 = 49.5: picture 49, painted for 0.49, not for 0.5.
  StarCanvas canvas(black);
  canvas.draw(*makeStar(0.5F));
  canvas.expectStar(0.49F, black);
  StarCanvas brightest(black);
  brightest.draw(*makeStar(1.0F));
  brightest.expectStar(0.99F, black);
}

TEST_F(Palette, ARestingStarDrawsThePictureOfItsBaseBrightness) {
  StarCanvas canvas(black);
  const auto star = makeStar(0.4F);
  star->setPhase(star->twinkleDuration() + 1.0F);
  star->update(0.04F);
  canvas.draw(*star);
  canvas.expectStar(0.39F, black);  // 0.4 * 99 = 39.6
}

TEST_F(Palette, TheSkyIsSeenWhereAStarIsBlack) {
  constexpr xplColor sky(3, 60, 7);
  StarCanvas canvas(sky);
  canvas.draw(*makeStar(0.7F));
  canvas.expectStar(0.69F, sky);  // 0.7 * 99 = 69.3
}

TEST_F(Palette, AStarOfBrightness0IsInvisible) {
  constexpr xplColor sky(3, 60, 7);
  StarCanvas canvas(sky);
  canvas.draw(*makeStar(0.0F));
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      ASSERT_EQ(sky.value(), canvas.at(x, y).value()) << x << ", " << y;
    }
  }
}

TEST_F(Palette, AStarOfFullBrightnessHasAWhiteMiddle) {
  StarCanvas canvas(black);
  canvas.draw(*makeStar(1.0F));
  EXPECT_EQ(xplColor(255, 255, 255), canvas.at(8, 9));
}

TEST_F(Palette, KeptAStarThatIsNotShownStillDrawsItselfWhenAskedDirectly) {
  StarCanvas canvas(black);
  const auto star = makeStar(0.5F);
  star->hide();
  star->disable();
  canvas.draw(*star);
  canvas.expectStar(0.49F, black);
}

TEST_F(Palette, AStarWithoutAWindowDrawsNothing) {
  const auto star = makeStar(0.5F);
  const std::string before = logText();
  star->draw();
  EXPECT_EQ(before, logText());
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

TEST_F(Palette, StarsAreSevenPixelsWide) {
  const auto star = makeStar(0.1F);
  star->calcSize();
  EXPECT_FLOAT_EQ(7.0F, star->width);
  EXPECT_FLOAT_EQ(7.0F, star->height);
  EXPECT_TRUE(star->sizeIsValid());
}

}  // namespace
