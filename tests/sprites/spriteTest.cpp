// How sprites are shown, sized, placed and drawn.
#include <vector>

#include "harness/privateFolders.h"
#include "sprites/sprite.h"
#include "sprites/spriteDirector.h"
#include "sprites/spriteImage.h"
#include "sprites/spriteText.h"
#include "support/random.h"
#include "windowharness/testWindow.h"

namespace {

class RecordingSprite : public TorvSprite {
 public:
  RecordingSprite(const char* name, std::vector<std::string>& events) : TorvSprite(name), m_events(events) {}
  void draw() override { m_events.push_back(std::string("draw ") + name()); }
  void calcSize() override { setSizeIsValid(true); }
  void update(float elapsedSec) override {
    m_events.push_back(std::string("update ") + name());
    TorvSprite::update(elapsedSec);
  }

 private:
  std::vector<std::string>& m_events;
};

class Sprites : public PrivateFolders {
 protected:
  std::vector<std::string> events;
  TestWindow native{200, 100};
  xplWindow window{native.handle()};

  void clear() { window.fillRect(xplRect<int>(0, 0, 200, 100), {0, 0, 0}); }
  // The leftmost column in which anything is drawn; -1 for none.
  int firstDrawnColumn() {
    for (int x = 0; x < 200; ++x) {
      for (int y = 0; y < 100; ++y) {
        if (!(window.getPixel(x, y) == xplColor(0, 0, 0))) {
          return x;
        }
      }
    }
    return -1;
  }
};

TEST_F(Sprites, DirectorUpdatesAndDrawsInListOrder) {
  RecordingSprite a("a", events);
  RecordingSprite b("b", events);
  TorvSpriteDirector director;
  director.addSprite(b);
  director.addSprite(a);
  director.updateAll(0.04F);
  director.drawAll();
  EXPECT_EQ((std::vector<std::string>{"update b", "update a", "draw b", "draw a"}), events);
}

TEST_F(Sprites, DirectorLeavesOutHiddenAndDisabledOnesButUpdatesThem) {
  RecordingSprite hidden("hidden", events);
  RecordingSprite disabled("disabled", events);
  RecordingSprite shown("shown", events);
  hidden.hide();
  disabled.disable();
  TorvSpriteDirector director;
  for (TorvSprite* sprite : std::vector<TorvSprite*>{&hidden, &disabled, &shown}) {
    director.addSprite(*sprite);
  }
  director.drawAll();
  EXPECT_EQ((std::vector<std::string>{"draw shown"}), events);
  director.updateAll(0.1F);
  EXPECT_EQ(4U, events.size());
}

TEST_F(Sprites, DirectorHandsTheWindowToAll) {
  RecordingSprite a("a", events);
  RecordingSprite b("b", events);
  a.calcSize();
  TorvSpriteDirector director;
  director.addSprite(a);
  director.addSprite(b);
  director.setRenderWindowAll(&window);
  EXPECT_EQ(&window, a.renderWindow());
  EXPECT_EQ(&window, b.renderWindow());
  EXPECT_FALSE(a.sizeIsValid()) << "a new window needs a new size";
}

TEST_F(Sprites, EnabledMoreOftenThanDisabledAreReported) {
  RecordingSprite sprite("bottomLine", events);
  sprite.disable();
  sprite.enable();
  EXPECT_TRUE(sprite.isShown());
  sprite.enable();
  EXPECT_EQ(1,
            countEntries("#8662b: bottomLine disabledCount < 0. enable() called more times than disable(). "
                         "disabledCount:-1",
                         "ERROR"));
}

TEST_F(Sprites, RandomPositionDrawsTheRowFirst) {
  RecordingSprite sprite("a", events);
  sprite.width = 10.0F;
  sprite.height = 20.0F;
  xplRandom::seed(77);
  const float r1 = xplRandom::unit();
  const float r2 = xplRandom::unit();
  xplRandom::seed(77);
  sprite.setRandomPosition({5.0F, 7.0F}, {105.0F, 207.0F});
  EXPECT_FLOAT_EQ(7.0F + r1 * 180.0F, sprite.y);
  EXPECT_FLOAT_EQ(5.0F + r2 * 90.0F, sprite.x);
}

TEST_F(Sprites, RandomPositionKeepsThemWhollyInsideTheArea) {
  RecordingSprite sprite("a", events);
  sprite.width = 10.0F;
  sprite.height = 20.0F;
  for (int i = 0; i < 1000; ++i) {
    sprite.setRandomPosition({0.0F, 0.0F}, {50.0F, 60.0F});
    ASSERT_GE(sprite.x, 0.0F);
    ASSERT_LE(sprite.getRight(), 50.0);
    ASSERT_GE(sprite.y, 0.0F);
    ASSERT_LE(sprite.getBottom(), 60.0);
  }
}

TEST_F(Sprites, InAnAreaThatIsTooSmallStandLeftOfAndAboveIt) {
  RecordingSprite sprite("a", events);
  sprite.width = 100.0F;
  sprite.height = 100.0F;
  for (int i = 0; i < 100; ++i) {
    sprite.setRandomPosition({10.0F, 10.0F}, {20.0F, 20.0F});
    ASSERT_LE(sprite.x, 10.0F);
    ASSERT_LE(sprite.y, 10.0F);
  }
}

TEST_F(Sprites, TheSameTextAgainKeepsTheSizeValid) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("stars");
  text.calcSize();
  EXPECT_TRUE(text.sizeIsValid());
  EXPECT_GT(text.width, 10.0F);
  EXPECT_GT(text.height, 5.0F);
  text.setText("stars");
  EXPECT_TRUE(text.sizeIsValid());
  text.setText("Stars");
  EXPECT_FALSE(text.sizeIsValid());
}

TEST_F(Sprites, TextWithoutAWindowHasNoSizeAndIsReportedWhenDrawn) {
  TorvSpriteText text("label");
  text.setText("stars");
  text.width = 5.0F;
  text.calcSize();
  EXPECT_FLOAT_EQ(0.0F, text.width);
  EXPECT_FALSE(text.sizeIsValid());
  text.draw();
  EXPECT_EQ(1, countEntries("#4573: label.draw() with nil m_renderWindowPtr"));
}

TEST_F(Sprites, TextMeasuresInItsOwnFontSizeAndLeavesTheWindowsAlone) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("stars");
  text.calcSize();
  const float inWindowSize = text.height;
  text.style.useWindowFontSize = false;
  text.style.fontSize = 36;
  text.calcSize();
  EXPECT_GT(text.height, 2.0F * inWindowSize);
  EXPECT_EQ(12, window.fontSize.current());
}

TEST_F(Sprites, CentredTextIsDrawnHalfItsWidthFurtherRight) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("|");
  text.style.useWindowTextColor = false;
  text.style.textColor = xplColor(255, 255, 255);
  text.width = 101.0F;
  text.x = 20.0F;
  clear();
  text.draw();
  const int left = firstDrawnColumn();
  clear();
  // Centred on x + 50, so the narrow text itself starts a little left of there.
  text.style.alignDefault = false;
  text.style.alignment = xplTextAttributes::alignmentCentered;
  text.draw();
  int width = 0;
  window.getTextSize("|", &width, nullptr);
  EXPECT_EQ(left + 50 - width / 2, firstDrawnColumn());
}

TEST_F(Sprites, HiddenTextDrawsNothingEvenWhenAskedDirectly) {
  TorvSpriteText text("t");
  text.setRenderWindow(&window);
  text.setText("stars");
  clear();
  text.hide();
  text.draw();
  EXPECT_EQ(-1, firstDrawnColumn());
  text.unhide();
  text.draw();
  EXPECT_NE(-1, firstDrawnColumn());
}

TEST_F(Sprites, KeptAHiddenPictureStillDrawsItselfWhenAskedDirectly) {
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

TEST_F(Sprites, APictureWithoutAnImageNeitherDrawsNorSizes) {
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

TEST_F(Sprites, ResizingAPictureTakesItsNewSizeAtOnce) {
  TorvSpriteImage_ownedImg picture("p");
  picture.image()->initWithSizeAndColor(4, 3, {9, 8, 7});
  picture.resizeImage(10, 20);
  EXPECT_FLOAT_EQ(10.0F, picture.width);
  EXPECT_FLOAT_EQ(20.0F, picture.height);
  EXPECT_TRUE(picture.sizeIsValid());
}

}  // namespace
