// How the world is built, moved, drawn and taken down.
#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>

#include "world/guarded.h"
#include "worldFixture.h"

namespace {

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
  EXPECT_EQ(0, countEntries("m_windowRect.left=0, top=0, w=0 h=0"));
  EXPECT_EQ(0, world.windowRect().width);
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

TEST_F(World, KeptTheBottomLineIsAsManyPointsHighAsAnEightiethOfTheWindowHasPixels) {
  const auto heightOfTextIn = [this](int windowHeight) {
    const auto world = makeWorld(100, windowHeight);
    world->initializeWorld();
    return world->bottomLine().style.fontSize;
  };
  EXPECT_EQ(9, heightOfTextIn(720));
  EXPECT_EQ(9, heightOfTextIn(799));
  EXPECT_EQ(10, heightOfTextIn(800));
  EXPECT_EQ(27, heightOfTextIn(2160));
}

TEST_F(World, KeptTheWindowsPlaceOnTheScreenDoesNotMoveWhatIsInIt) {
  const auto world = makeWorld(200, 100, 50, 40);
  EXPECT_EQ(0, world->windowRect().left);
  EXPECT_EQ(0, world->windowRect().top);
  EXPECT_EQ(200, world->windowRect().getRight());
  EXPECT_EQ(100, world->windowRect().getBottom());
  world->initializeWorld();
  EXPECT_FLOAT_EQ(201.0F, world->bottomLine().x);
}

TEST_F(World, KeepsItsMonitorAndACopyOfItsFolder) {
  EXPECT_EQ(0, makeWorld(152, 112, 0, 0, 0)->monitorId());
  const auto preview = makeWorld(152, 112, 0, 0, TnoctisWorld::previewMonitorId);
  EXPECT_EQ(-1, preview->monitorId());
  EXPECT_EQ("folder", preview->containerFolder());
}

TEST_F(World, WithoutMessagesKeepsTheBottomLineDisabled) {
  leaveOnlyStars();
  const auto world = makeWorld(64, 48);
  world->initializeWorld();
  for (int i = 0; i < 1000; ++i) {
    world->update(0.04F);
  }
  EXPECT_EQ(1, world->bottomLine().disabledCount());
  EXPECT_EQ(nullptr, world->msgStarDirector().transition());
  EXPECT_FALSE(world->msgStar(0).isVisible);
}

TEST_F(World, InALowWindowGivesTheBottomLineTheSmallestText) {
  for (const int height : {719, 639, 100, 1}) {
    const auto world = makeWorld(640, height);
    world->initializeWorld();
    EXPECT_EQ(8, world->bottomLine().style.fontSize) << height;
  }
}

TEST_F(World, KeepsTheBottomLine22PixelsAboveTheEdgeOfALowWindow) {
  const auto world = makeWorld(640, 300);
  world->initializeWorld();
  EXPECT_FLOAT_EQ(278.0F, world->bottomLine().y);
}

TEST_F(World, LogsItsBuildingAndItsEndInThisOrder) {
  xplUserSettings().set("background", 2);
  leaveOnlyStars();
  makeWorld(64, 48).reset();
  const std::size_t before = logEntries().size();
  {
    const std::unique_ptr<TnoctisWorld> world =
        std::make_unique<TnoctisWorld>(window.get(), 0, monitors, "folder");
    world->initializeWorld();
    world->update(0.04F);
    world->draw();
    world->draw();
  }
  const auto entries = logEntries();
  const std::vector<std::string> expected = {
      "Entering: cMoonInfo::calcPhaseForTime",
      "Exiting: cMoonInfo::calcPhaseForTime",
      "First cStarSpriteWithPixels create. Will create cStarPalette\n",
      "cImageBinder initializing 100 images",
      "TstarImageBinder created",
      "Entering: creating thousands of message stars",
      "Exiting: creating thousands of message stars. Duration:0.000 sec",
      "m_windowRect.left=0, top=0, w=64 h=48",
      "m_mainMonitorRect.left=20, top=10, w=320 h=240",
      "Entering: initializeWorld()",
      "Entering: cSkyBackgroundFactory.create()",
      "Exiting: cSkyBackgroundFactory.create(). Duration:0.000 sec",
      "Entering: initializeMoon()",
      "moon is disabled",
      "Exiting: initializeMoon(). Duration:0.000 sec",
      "bottomLine default height:10",
      "Exiting: initializeWorld()",
      "Entering: cSkyBackground_ImageStretched.initialize()",
      "xplImageWin.resizeTo_impl() exiting with new w=64, new h=48",
      "skyBackground resizedTo: 64 x 48",
      "Exiting: cSkyBackground_ImageStretched.initialize(). Duration:0.000 sec",
      "Entering: TnoctisWorld.destructor()",
      "Deleted stars[]",
      "Last cStarSpriteWithPixels destroy. Destroyed cStarPalette\n",
      "Deleted msgStars[]",
      "Deleted m_backgroundPtr[]",
      "Exiting: TnoctisWorld.destructor()",
  };
  EXPECT_EQ(expected,
            std::vector<std::string>(entries.begin() + static_cast<std::ptrdiff_t>(before), entries.end()));
}

TEST_F(World, DrawsFromBackToFrontInThisOrder) {
  xplUserSettings().set("showQuotes_Wisdom", true);
  const auto world = makeWorld();
  world->initializeWorld();
  std::vector<std::string> runs;  // a name for each run of sprites that have it
  std::vector<std::size_t> lengths;
  for (const TorvSprite* sprite : world->spriteDirector().sprites()) {
    if (runs.empty() || runs.back() != sprite->name()) {
      runs.emplace_back(sprite->name());
      lengths.push_back(0);
    }
    ++lengths.back();
  }
  ASSERT_EQ(8U, runs.size());
  EXPECT_EQ((std::vector<std::string>{"normal star", "msg star", "moonSprite", "bottomLine", "moonInfoLabel",
                                      "quotesLabel", "Airplane"}),
            std::vector<std::string>(runs.begin() + 1, runs.end()));
  EXPECT_EQ((std::vector<std::size_t>{1, 200, 1500, 1, 1, 1, 1, 3}), lengths);
}

TEST_F(World, DrawsTheStarsOverTheBackground) {
  leaveOnlyStars();
  xplUserSettings().set("background", 0);
  const auto world = makeWorld(240, 180);
  world->initializeWorld();
  world->draw();
  int sky = 0;
  int light = 0;
  for (int y = 0; y < 180; ++y) {
    for (int x = 0; x < 240; ++x) {
      const xplColor color = window->getPixel(x, y);
      sky += color == xplColor(0, 0, 20) ? 1 : 0;
      light += color.red() > 60 ? 1 : 0;
    }
  }
  EXPECT_GT(light, 150);
  EXPECT_GT(sky, 240 * 180 - 200 * 49);
  window->flush();
  EXPECT_EQ(xplColor(0, 0, 20), native->shownPixel(0, 179));
}

TEST_F(World, MovesNoStarFurtherThanItsSpeedAllows) {
  const auto world = makeWorld();
  world->initializeWorld();
  const float before = world->star(0).x;
  world->update(0.04F);
  EXPECT_FLOAT_EQ(before + world->star(0).speedX * 0.04F, world->star(0).x);
}

TEST_F(World, FliesThreeAirplanesThatComeBackOnTheOtherSide) {
  xplRandom::seed(3);
  const auto world = makeWorld(64, 48);
  world->initializeWorld();
  for (std::size_t i = 0; i < TnoctisWorld::airplaneCount; ++i) {
    EXPECT_FALSE(world->airplane(i).isPositioned());
  }
  for (int i = 0; i < 2000; ++i) {
    world->update(0.04F);
    for (std::size_t k = 0; k < TnoctisWorld::airplaneCount; ++k) {
      const auto& airplane = world->airplane(k);
      ASSERT_TRUE(airplane.isPositioned());
      // Looked at on every tenth move, at less than a pixel a move.
      ASSERT_GT(airplane.x, -11.0F);
      ASSERT_LT(airplane.x, 64.0F + 11.0F);
      ASSERT_GT(airplane.y, -11.0F);
      ASSERT_LT(airplane.y, 48.0F + 11.0F);
    }
  }
}

TEST_F(World, HasAFrameRateLabelThatIsNotShown) {
  const auto world = makeWorld(64, 48);
  EXPECT_EQ(0, world->frameRateLabel().disabledCount());
  world->initializeWorld();
  EXPECT_EQ(1, world->frameRateLabel().disabledCount());
  for (int i = 0; i < cFrameRateSprite::framesPerMeasurement; ++i) {
    clock.advance(40000);
    world->update(0.04F);
  }
  EXPECT_EQ("frame rate (wait...)", world->frameRateLabel().text());
}

TEST_F(World, DrawsTheAirplanesOverTheStars) {
  xplRandom::seed(3);
  const auto world = makeWorld(64, 48);
  world->initializeWorld();
  world->update(0.04F);
  world->draw();
  for (std::size_t i = 0; i < TnoctisWorld::airplaneCount; ++i) {
    const auto& airplane = world->airplane(i);
    const xplColor expected = airplane.isLightOn() ? xplColor(255, 0, 0) : xplColor(192, 192, 192);
    EXPECT_EQ(expected, window->getPixel(static_cast<int>(airplane.x), static_cast<int>(airplane.y)));
  }
}

// Long enough for two messages.
TEST_F(World, SurvivesWindowsOfAllSizes) {
  for (const auto& [width, height] :
       std::vector<std::pair<int, int>>{{1, 1}, {1, 2000}, {64, 48}, {900, 2}}) {
    const auto world = makeWorld(width, height);
    world->initializeWorld();
    for (int i = 0; i < 60 * 25; ++i) {
      world->update(0.04F);
      if (i % 50 == 0) {
        world->draw();
      }
    }
    EXPECT_NE(nullptr, world->msgStarDirector().transition()) << width << " x " << height;
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
