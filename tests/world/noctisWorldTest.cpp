// How the world is built, moved, drawn and taken down.
#include <algorithm>

#include "harness/privateFolders.h"
#include "support/random.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"
#include "world/guarded.h"
#include "world/noctisWorld.h"

namespace {

class World : public PrivateFolders {
 protected:
  std::unique_ptr<TnoctisWorld> makeWorld(int width = 640, int height = 480, int left = 0, int top = 0) {
    native = std::make_unique<TestWindow>(width, height, left, top);
    window = std::make_unique<xplWindow>(native->handle());
    return std::make_unique<TnoctisWorld>(window.get(), 0, monitors, "folder");
  }
  // Where in the log this entry stands; -1 where it does not.
  std::ptrdiff_t indexOf(const std::string& entry) {
    const auto entries = logEntries();
    const auto found = std::find(entries.begin(), entries.end(), entry);
    return found == entries.end() ? -1 : found - entries.begin();
  }
  void expectOrder(const std::vector<std::string>& expected) {
    std::ptrdiff_t last = -1;
    for (const auto& entry : expected) {
      const auto index = indexOf(entry);
      EXPECT_GT(index, last) << entry;
      last = index;
    }
  }

  std::vector<xplRect<int>> monitors = {xplRect<int>(10, 20, 320, 240), xplRect<int>(0, 340, 100, 100)};
  std::unique_ptr<TestWindow> native;
  std::unique_ptr<xplWindow> window;
};

TEST_F(World, HoldsTwoHundredStarsInTheirRanges) {
  const auto world = makeWorld();
  for (std::size_t i = 0; i < TnoctisWorld::starCount; ++i) {
    const auto& star = world->star(i);
    ASSERT_GE(star.baseBrightness(), 0.05F);
    ASSERT_LT(star.baseBrightness(), 0.4F);
    ASSERT_FLOAT_EQ(0.6F, star.twinkleAmplitude());
    ASSERT_GE(star.restDuration(), 90.0F);
    ASSERT_LT(star.restDuration(), 110.0F);
    ASSERT_STREQ("normal star", star.name());
  }
}

TEST_F(World, TakesTheWindowInItsOwnCoordinatesAndTheFirstMonitor) {
  const auto world = makeWorld(640, 480, 50, 40);
  EXPECT_EQ(1, countEntries("m_windowRect.left=0, top=0, w=640 h=480"));
  EXPECT_EQ(1, countEntries("m_mainMonitorRect.left=20, top=10, w=320 h=240"));
  EXPECT_EQ(xplColor(0, 0, 13), window->backgroundColor.current());
}

TEST_F(World, WithoutMonitorsIsReportedAndGoesOn) {
  monitors.clear();
  const auto world = makeWorld();
  EXPECT_EQ(1, countEntries("#4714: m_MonitorList size <1", "ERROR"));
  EXPECT_EQ(0, world->mainMonitorRect().width);
  world->initializeWorld();
  world->update(0.04F);
  world->draw();
}

TEST_F(World, WithoutAWindowDrawsNothingAndDoesNotFall) {
  TnoctisWorld world(nullptr, 0, monitors, "");
  world.initializeWorld();
  world.update(0.04F);
  world.draw();
  EXPECT_EQ(-1, indexOf("m_windowRect.left=0, top=0, w=0 h=0"));
}

TEST_F(World, SpreadsTheStarsOverTheWindowAtSlowSpeeds) {
  const auto world = makeWorld();
  world->initializeWorld();
  float farthestRight = 0.0F;
  for (std::size_t i = 0; i < TnoctisWorld::starCount; ++i) {
    const auto& star = world->star(i);
    ASSERT_GE(star.left, 0.0F);
    ASSERT_LE(star.getRight(), 640.0);
    ASSERT_GE(star.top, 0.0F);
    ASSERT_LE(star.getBottom(), 480.0);
    ASSERT_LE(std::abs(star.speedX), 0.2F);
    ASSERT_LE(std::abs(star.speedY), 0.2F);
    farthestRight = std::max(farthestRight, star.left);
  }
  EXPECT_GT(farthestRight, 500.0F);
}

TEST_F(World, PutsTheBottomLineRightOfTheWindowAndDisablesIt) {
  const auto world = makeWorld(1920, 1080);
  world->initializeWorld();
  const auto& line = world->bottomLine();
  EXPECT_FLOAT_EQ(1921.0F, line.x);
  EXPECT_FLOAT_EQ(0.95F * 1080.0F, line.y);
  EXPECT_EQ(13, line.style.fontSize);
  EXPECT_FALSE(line.style.useWindowFontSize);
  EXPECT_FLOAT_EQ(-54.0F, line.speedX);
  EXPECT_EQ(1, line.disabledCount());
  EXPECT_EQ(1, countEntries("bottomLine default height:10"));
}

TEST_F(World, InALowWindowGivesTheBottomLineTheSmallestText) {
  const auto world = makeWorld(640, 719);
  world->initializeWorld();
  EXPECT_EQ(8, world->bottomLine().style.fontSize);
  const auto higher = makeWorld(640, 720);
  higher->initializeWorld();
  EXPECT_EQ(9, higher->bottomLine().style.fontSize);
}

TEST_F(World, KeepsTheBottomLine22PixelsAboveTheEdgeOfALowWindow) {
  const auto world = makeWorld(640, 300);
  world->initializeWorld();
  EXPECT_FLOAT_EQ(278.0F, world->bottomLine().y);
}

TEST_F(World, LogsItsBuildingAndItsEndInOrder) {
  {
    const auto world = makeWorld();
    world->initializeWorld();
  }
  expectOrder({"First cStarSpriteWithPixels create. Will create cStarPalette\n", "TstarImageBinder created",
               "m_windowRect.left=0, top=0, w=640 h=480", "Entering: initializeWorld()",
               "Entering: cSkyBackgroundFactory.create()", "bottomLine default height:10",
               "Exiting: initializeWorld()", "Entering: TnoctisWorld.destructor()",
               "Last cStarSpriteWithPixels destroy. Destroyed cStarPalette\n", "Deleted stars[]",
               "Deleted m_backgroundPtr[]", "Exiting: TnoctisWorld.destructor()"});
}

TEST_F(World, DrawsTheStarsOverTheBackground) {
  xplUserSettings().set("background", 0);
  const auto world = makeWorld();
  world->initializeWorld();
  world->draw();
  int sky = 0;
  int light = 0;
  for (int y = 0; y < 480; ++y) {
    for (int x = 0; x < 640; ++x) {
      const xplColor color = window->getPixel(x, y);
      sky += color == xplColor(0, 0, 20) ? 1 : 0;
      light += color.red() > 60 ? 1 : 0;
    }
  }
  EXPECT_GT(light, 150);
  EXPECT_GT(sky, 640 * 480 - 200 * 49);
  window->flush();
  EXPECT_EQ(xplColor(0, 0, 20), native->shownPixel(0, 479));
}

TEST_F(World, MovesTheSameWayForTheSameSeed) {
  const auto placesAfter = [this](std::uint32_t seed) {
    xplRandom::seed(seed);
    const auto world = makeWorld();
    world->initializeWorld();
    for (int i = 0; i < 1000; ++i) {
      world->update(0.04F);
    }
    std::vector<float> places;
    for (std::size_t i = 0; i < TnoctisWorld::starCount; ++i) {
      places.push_back(world->star(i).x);
      places.push_back(world->star(i).y);
      places.push_back(world->star(i).brightness());
    }
    return places;
  };
  const auto first = placesAfter(9);
  EXPECT_EQ(first, placesAfter(9));
  EXPECT_NE(first, placesAfter(10));
}

TEST_F(World, MovesNoStarFurtherThanItsSpeedAllows) {
  const auto world = makeWorld();
  world->initializeWorld();
  const float before = world->star(0).x;
  world->update(0.04F);
  EXPECT_FLOAT_EQ(before + world->star(0).speedX * 0.04F, world->star(0).x);
}

TEST_F(World, SurvivesWindowsOfAllSizes) {
  for (const auto& [width, height] : std::vector<std::pair<int, int>>{{1, 1}, {1, 200}, {64, 48}, {900, 2}}) {
    const auto world = makeWorld(width, height);
    world->initializeWorld();
    for (int i = 0; i < 30; ++i) {
      world->update(0.04F);
      world->draw();
    }
  }
}

TEST_F(World, AGuardedStepThatThrowsIsLoggedAndPassed) {
  guarded("initializeBackground() exception", [] { throw std::runtime_error("no picture"); });
  guarded("initializeBottomLine() exception", [] { throw std::logic_error("no text"); });
  guarded("initializeBottomLine() exception", [] { throw 5; });
  EXPECT_EQ(1, countEntries("Runtime error caught:\nno picture\ninitializeBackground() exception", "ERROR"));
  EXPECT_EQ(1, countEntries("Exception caught:\nno text\ninitializeBottomLine() exception", "ERROR"));
  EXPECT_EQ(1, countEntries("Exception caught:initializeBottomLine() exception", "ERROR"));
}

}  // namespace
