// How the world is built and taken down, and what it is given.
#include <stdexcept>
#include <string>
#include <vector>

#include "world/guarded.h"
#include "worldFixture.h"

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

TEST_F(World, AGuardedStepThatThrowsIsLoggedAndPassed) {
  guarded("initializeBackground() exception", [] { throw std::runtime_error("no picture"); });
  guarded("initializeBottomLine() exception", [] { throw std::logic_error("no text"); });
  guarded("initializeBottomLine() exception", [] { throw 5; });
  EXPECT_EQ(1, countEntries("Runtime error caught:\nno picture\ninitializeBackground() exception", "ERROR"));
  EXPECT_EQ(1, countEntries("Exception caught:\nno text\ninitializeBottomLine() exception", "ERROR"));
  EXPECT_EQ(1, countEntries("Exception caught:initializeBottomLine() exception", "ERROR"));
}
