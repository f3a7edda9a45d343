// How sprites are shown, placed, and directed together.
#include <limits>
#include <string>
#include <vector>

#include "spriteFixture.h"
#include "sprites/sprite.h"
#include "sprites/spriteDirector.h"
#include "sprites/wholePixel.h"
#include "support/random.h"

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

class Sprites : public SpriteCanvas {
 protected:
  std::vector<std::string> events;
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

TEST_F(Sprites, BeginShownUnsizedAndWithoutAWindow) {
  RecordingSprite sprite("a", events);
  EXPECT_TRUE(sprite.isShown());
  EXPECT_EQ(0, sprite.disabledCount());
  EXPECT_EQ(0, sprite.hiddenCount());
  EXPECT_FALSE(sprite.sizeIsValid());
  EXPECT_EQ(nullptr, sprite.renderWindow());
}

TEST_F(Sprites, DisabledTwiceAreShownAfterTheSecondEnable) {
  RecordingSprite sprite("a", events);
  sprite.disable();
  sprite.disable();
  sprite.enable();
  EXPECT_FALSE(sprite.isShown());
  sprite.enable();
  EXPECT_TRUE(sprite.isShown());
  EXPECT_EQ(std::string::npos, logText().find("#8662b"));
}

TEST_F(Sprites, DirectorUpdatesByMoving) {
  RecordingSprite sprite("a", events);
  sprite.speedX = 50.0F;
  TorvSpriteDirector director;
  director.addSprite(sprite);
  director.updateAll(0.5F);
  EXPECT_FLOAT_EQ(25.0F, sprite.x);
}

TEST_F(Sprites, DirectorDrawsWhatWasEnabledTooOften) {
  RecordingSprite sprite("a", events);
  sprite.enable();
  TorvSpriteDirector director;
  director.addSprite(sprite);
  director.drawAll();
  EXPECT_EQ((std::vector<std::string>{"draw a"}), events);
}

TEST_F(Sprites, WholePixelsTruncateTowardsZeroAndSaturate) {
  EXPECT_EQ(0, wholePixel(-0.5));
  EXPECT_EQ(-1, wholePixel(-1.999));
  EXPECT_EQ(1, wholePixel(1.999));
  EXPECT_EQ(std::numeric_limits<int>::max(), wholePixel(1e30));
  EXPECT_EQ(std::numeric_limits<int>::min(), wholePixel(-1e30));
  EXPECT_EQ(0, wholePixel(std::numeric_limits<double>::quiet_NaN()));
}

}  // namespace
