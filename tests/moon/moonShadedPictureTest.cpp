// What darkening does to a picture.
#include <cstdint>

#include "graphics/image.h"
#include "harness/privateFolders.h"
#include "moon/moonShading.h"

namespace {

class ShadedPicture : public PrivateFolders {
 protected:
  static constexpr xplColor gray{200, 100, 50};

  static constexpr xplColor dimmed(float factor) {
    const float blueFactor = factor > 0.3F ? factor : 0.3F;
    return {static_cast<std::uint8_t>(200.0F * factor), static_cast<std::uint8_t>(100.0F * factor),
            static_cast<std::uint8_t>(50.0F * blueFactor)};
  }

  // A hash of the shaded form of a picture that has every brightness in each channel.
  static std::uint64_t hashOfShaded(int size, int phase) {
    xplImage image;
    image.initWithSizeAndColor(size, size, {0, 0, 0});
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        image.setPixel(x, y, {channel(x * 7 + y * 3), channel(x * 5 + y * 11), channel(x + y * 13)});
      }
    }
    shadeMoon(image, static_cast<float>(size), static_cast<float>(size), phase);
    std::uint64_t hash = 14695981039346656037U;
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        hash ^= image.getPixel(x, y).value();
        hash *= 1099511628211U;
      }
    }
    return hash;
  }

  static std::uint8_t channel(int value) { return static_cast<std::uint8_t>(value % 256); }

  // Shades a picture of one colour and compares each pixel; the lower half mirrors rows about height - y.
  void expectShaded(int size, int phase) {
    xplImage image;
    image.initWithSizeAndColor(size, size, gray);
    shadeMoon(image, static_cast<float>(size), static_cast<float>(size), phase);
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        const int row = 2 * y <= size ? y : size - y;
        const float factor = moonPixelIllumination(x, row, static_cast<float>(size), phase);
        ASSERT_EQ(dimmed(factor).value(), image.getPixel(x, y).value())
            << size << " at " << phase << ": " << x << ", " << y;
      }
    }
  }
};

// Computed by reference/shading.py with 60 digits.
TEST_F(ShadedPicture, IsTheSameOnEveryPlatform) {
  EXPECT_EQ(16655904571939113873U, hashOfShaded(50, 0));
  EXPECT_EQ(5216764374294501717U, hashOfShaded(100, 40));
  EXPECT_EQ(12105207440478462037U, hashOfShaded(100, 180));
  EXPECT_EQ(6544931090982263525U, hashOfShaded(200, 271));
  EXPECT_EQ(14567348069886130901U, hashOfShaded(300, 90));
  EXPECT_EQ(9626192697440264917U, hashOfShaded(300, 341));
  EXPECT_EQ(18038810303453643221U, hashOfShaded(300, -77));
}

TEST_F(ShadedPicture, HasEachPixelDarkenedOnce) {
  for (const int size : {50, 100}) {
    for (int phase = 0; phase < 360; phase += 45) {
      expectShaded(size, phase);
    }
  }
}

TEST_F(ShadedPicture, OfAnOddSizeHasEachPixelDarkenedOnceToo) {
  expectShaded(51, 60);
  expectShaded(1, 0);
}

TEST_F(ShadedPicture, OnTheDarkSideIsBlueAlone) {
  xplImage image;
  image.initWithSizeAndColor(100, 100, gray);
  shadeMoon(image, 100.0F, 100.0F, 90);
  EXPECT_EQ(xplColor(0, 0, 15), image.getPixel(80, 50));
  EXPECT_EQ(xplColor(0, 0, 15), image.getPixel(0, 0)) << "as are the corners";
}

TEST_F(ShadedPicture, KeepsBlackBlack) {
  xplImage image;
  image.initWithSizeAndColor(60, 60, {0, 0, 0});
  shadeMoon(image, 60.0F, 60.0F, 300);
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) {
      ASSERT_EQ(xplColor(0, 0, 0), image.getPixel(x, y));
    }
  }
}

// Row 1 and the last row are one pair; row 0 has none. A mirror about height - 1 - y would pair row 0.
TEST_F(ShadedPicture, KeptMirroredRowIsHeightLessRow) {
  xplImage image;
  image.initWithSizeAndColor(100, 100, {255, 255, 255});
  shadeMoon(image, 100.0F, 100.0F, 40);
  bool rowsDiffer = false;
  for (int x = 0; x < 100; ++x) {
    EXPECT_EQ(image.getPixel(x, 1), image.getPixel(x, 99)) << x;
    rowsDiffer = rowsDiffer || image.getPixel(x, 0) != image.getPixel(x, 99);
  }
  EXPECT_TRUE(rowsDiffer);
}

TEST_F(ShadedPicture, WithoutAPictureIsNothing) {
  xplImage image;
  shadeMoon(image, 0.0F, 0.0F, 0);
  EXPECT_EQ(0, image.getWidth());
}

}  // namespace
