// How stars draw their pictures on the sky.
#include <algorithm>
#include <cstdlib>

#include "starPictureFixture.h"
#include "windowharness/testWindow.h"

namespace {

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

}  // namespace

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

TEST_F(Palette, StarsAreSevenPixelsWide) {
  const auto star = makeStar(0.1F);
  star->calcSize();
  EXPECT_FLOAT_EQ(7.0F, star->width);
  EXPECT_FLOAT_EQ(7.0F, star->height);
  EXPECT_TRUE(star->sizeIsValid());
}
