// The old television at the start of a run: when it is there, what it holds back, and its end.
#include <memory>
#include <string>

#include "harness/privateFolders.h"
#include "host/noctisScreensaver.h"
#include "support/random.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"
#include "world/oldTvEffect.h"

namespace {

constexpr int width = 160;
constexpr int height = 120;
constexpr int effectFrames = 26;  // in a window of this size
constexpr xplColor dark(5, 5, 16);
constexpr xplColor white(255, 255, 255);

class StartupEffect : public PrivateFolders {
 protected:
  StartupEffect() {
    sOldTvProgress::ofProcess() = {};
    xplUserSettings().set("background", 0);
    xplUserSettings().set("showMoon", false);
  }
  ~StartupEffect() override { sOldTvProgress::ofProcess() = {}; }

  std::unique_ptr<noctisScreensaver> makeSaver(int setting, int monitorId = 0) {
    xplUserSettings().set("startupEffect", setting);
    auto saver = std::make_unique<noctisScreensaver>();
    saver->initWithWindowHandle(window.handle(), monitorId);
    return saver;
  }
  // What a tick and its paint do.
  static void runFrames(noctisScreensaver& saver, int count) {
    for (int i = 0; i < count; ++i) {
      saver.animateOneFrame(0.04F);
      saver.drawOneFrame();
      saver.flushOneFrame();
    }
  }
  int countShown(xplColor color) {
    int count = 0;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        count += window.shownPixel(x, y) == color ? 1 : 0;
      }
    }
    return count;
  }
  bool hasStarted() const { return countEntries("cWindowTransitionEffect_base.initWithWindow()") > 0; }

  TestWindow window{width, height};
};

TEST_F(StartupEffect, IsThereForTheSetting1Alone) {
  for (const int setting : {0, 2, -1}) {
    makeSaver(setting);
    EXPECT_FALSE(hasStarted()) << setting;
  }
  makeSaver(1);
  EXPECT_TRUE(hasStarted());
}

TEST_F(StartupEffect, IsThereInThePreviewToo) {
  makeSaver(1, -1);
  EXPECT_TRUE(hasStarted());
}

TEST_F(StartupEffect, StartsBeforeTheWorldIsMade) {
  const auto saver = makeSaver(1);
  const std::string log = logText();
  const auto creating = log.find("Creating TnoctisWorld with monitorId =0");
  const auto effect = log.find("cWindowTransitionEffect_base.initWithWindow()");
  const auto world = log.find("initializeWorld()");
  ASSERT_NE(std::string::npos, creating);
  EXPECT_LT(creating, effect);
  EXPECT_LT(effect, world);
}

TEST_F(StartupEffect, HoldsTheWorldStillWhileItPlays) {
  const auto saver = makeSaver(1);
  const auto before = xplRandom::state();
  runFrames(*saver, effectFrames);
  EXPECT_EQ(before, xplRandom::state()) << "airplanes take their places on the first step";
  EXPECT_TRUE(saver->getPreserveDesktopContents());
  saver->animateOneFrame(0.04F);
  EXPECT_NE(before, xplRandom::state());
}

TEST_F(StartupEffect, IsShownInPlaceOfTheWorld) {
  const auto saver = makeSaver(1);
  saver->animateOneFrame(0.04F);
  saver->drawOneFrame();
  EXPECT_EQ(2 * 6 * width, countShown(dark)) << "straight on the window";
  runFrames(*saver, 10);
  EXPECT_EQ(width, countShown(white));
  EXPECT_EQ(width * (height - 1), countShown(dark));
}

TEST_F(StartupEffect, GivesWayToTheWorldInTheFirstDrawAfterItsEnd) {
  const auto saver = makeSaver(1);
  runFrames(*saver, effectFrames);
  EXPECT_EQ(width * height, countShown(dark));
  EXPECT_EQ(0, countEntries("mPreserveDeskopContents = false;"));
  saver->drawOneFrame();
  EXPECT_EQ(1, countEntries("mPreserveDeskopContents = false;", "Info"));
  EXPECT_FALSE(saver->getPreserveDesktopContents());
  saver->flushOneFrame();
  EXPECT_EQ(0, countShown(dark)) << "the sky's own colour";
  runFrames(*saver, 3);
  EXPECT_EQ(1, countEntries("mPreserveDeskopContents = false;"));
}

TEST_F(StartupEffect, LeavesTheSameSkyAsARunWithoutIt) {
  xplRandom::seed(5);
  const auto plain = makeSaver(0);
  runFrames(*plain, 50);
  const auto state = xplRandom::state();
  const int nightColored = countShown(xplColor(0, 0, 13));
  xplRandom::seed(5);
  const auto saver = makeSaver(1);
  runFrames(*saver, effectFrames + 50);
  EXPECT_EQ(state, xplRandom::state());
  EXPECT_EQ(nightColored, countShown(xplColor(0, 0, 13)));
}

TEST_F(StartupEffect, BeginsAnewWithASecondInitialisation) {
  const auto saver = makeSaver(1);
  runFrames(*saver, 3);
  saver->initWithWindowHandle(window.handle(), 0);
  EXPECT_EQ(2, countEntries("cWindowTransitionEffect_base.initWithWindow()"));
  runFrames(*saver, 1);
  EXPECT_FALSE(window.shownPixel(0, 0) == xplColor(0, 0, 13));
}

TEST_F(StartupEffect, EndsWithTheRun) {
  const auto saver = makeSaver(1);
  runFrames(*saver, 12);
  saver->shutDown();
  EXPECT_EQ(1, countEntries("Deleted startupEffectPtr"));
  const auto lines = countShown(white);
  runFrames(*saver, 2);
  EXPECT_EQ(lines, countShown(white)) << "nothing is drawn any more";
  EXPECT_TRUE(saver->getPreserveDesktopContents()) << "only the end of an effect clears it";
}

TEST_F(StartupEffect, GoesWithASaverThatIsDroppedWhileItPlays) {
  auto saver = makeSaver(1);
  runFrames(*saver, 12);
  saver.reset();
  EXPECT_EQ(1, countEntries("destroying: noctisScreensaver"));
}

TEST_F(StartupEffect, EndsAlsoInAWindowWithoutSize) {
  xplUserSettings().set("startupEffect", 1);
  noctisScreensaver saver;
  saver.initWithWindowHandle(nullptr, 0);
  runFrames(saver, 12 + 30);
  EXPECT_EQ(1, countEntries("mPreserveDeskopContents = false;"));
}

}  // namespace
