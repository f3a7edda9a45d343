// How picture sprites are sized and drawn.
#include <string>

#include "spriteFixture.h"
#include "sprites/spriteImage.h"

namespace {

using ImageSprites = SpriteCanvas;

TEST_F(ImageSprites, KeptAHiddenPictureStillDrawsItselfWhenAskedDirectly) {
  TorvSpriteImage_ownedImg picture("p");
  picture.setRenderWindow(&window);
  picture.image()->initWithSizeAndColor(4, 3, {9, 8, 7});
  picture.calcSize();
  EXPECT_FLOAT_EQ(4.0F, picture.width);
  EXPECT_FLOAT_EQ(3.0F, picture.height);
  clear();
  picture.x = 30.9F;
  picture.hide();
  picture.draw();
  EXPECT_EQ(30, firstDrawnColumn());
  clear();
  picture.disable();
  picture.draw();
  EXPECT_EQ(-1, firstDrawnColumn());
}

TEST_F(ImageSprites, APictureWithoutAnImageNeitherDrawsNorSizes) {
  TorvSpriteImage_linkedImg picture("p");
  picture.setRenderWindow(&window);
  picture.width = 12.0F;
  clear();
  picture.calcSize();
  picture.resizeImage(3, 3);
  picture.draw();
  EXPECT_FLOAT_EQ(12.0F, picture.width);
  EXPECT_FALSE(picture.sizeIsValid());
  EXPECT_EQ(-1, firstDrawnColumn());
}

TEST_F(ImageSprites, ResizingAPictureTakesItsNewSizeAtOnce) {
  TorvSpriteImage_ownedImg picture("p");
  picture.image()->initWithSizeAndColor(4, 3, {9, 8, 7});
  picture.resizeImage(10, 20);
  EXPECT_FLOAT_EQ(10.0F, picture.width);
  EXPECT_FLOAT_EQ(20.0F, picture.height);
  EXPECT_TRUE(picture.sizeIsValid());
}

TEST_F(ImageSprites, LeaveOutTheTransparentColour) {
  TorvSpriteImage_ownedImg picture("p");
  picture.setRenderWindow(&window);
  picture.image()->initWithSizeAndColor(3, 2, {9, 8, 7});
  picture.image()->setPixel(1, 1, {0, 255, 0});
  picture.image()->setTransparentColor({9, 8, 7});
  window.fillRect(xplRect<int>(0, 0, 200, 100), {1, 2, 3});
  picture.x = 5.0F;
  picture.y = 6.0F;
  picture.draw();
  EXPECT_EQ(xplColor(0, 255, 0), window.getPixel(6, 7));
  window.setPixel(6, 7, {1, 2, 3});
  expectAll({1, 2, 3});
}

TEST_F(ImageSprites, PlacesTruncateTowardsZeroAndTheWindowClips) {
  TorvSpriteImage_ownedImg picture("p");
  picture.setRenderWindow(&window);
  picture.image()->initWithSizeAndColor(4, 4, {9, 8, 7});
  picture.x = -2.9F;
  picture.y = -0.9F;
  picture.draw();
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 200; ++x) {
      const xplColor expected = x < 2 && y < 4 ? xplColor(9, 8, 7) : xplColor(0, 0, 0);
      ASSERT_EQ(expected.value(), window.getPixel(x, y).value()) << x << ", " << y;
    }
  }
}

TEST_F(ImageSprites, WithoutAWindowSaySoToNobody) {
  TorvSpriteImage_ownedImg picture("p");
  picture.image()->initWithSizeAndColor(4, 4, {9, 8, 7});
  const std::string before = logText();
  picture.draw();
  EXPECT_EQ(before, logText());
}

TEST_F(ImageSprites, MayLinkToAnImageOfSomebodyElse) {
  xplImage image;
  image.initWithSizeAndColor(4, 3, {9, 8, 7});
  TorvSpriteImage_linkedImg picture("p");
  picture.setRenderWindow(&window);
  picture.linkImage(&image);
  picture.calcSize();
  EXPECT_FLOAT_EQ(4.0F, picture.width);
  picture.draw();
  EXPECT_TRUE(isDrawn(3, 2));
  EXPECT_FALSE(isDrawn(4, 3));
}

}  // namespace
