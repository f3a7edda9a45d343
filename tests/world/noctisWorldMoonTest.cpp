// The moon stands where it belongs on the monitors, and follows them.
#include <vector>

#include "worldLabelsFixture.h"

namespace {

TEST_F(WorldLabels, PutTheMoonAt70PercentOfTheWidthAnd12OfTheHeight) {
  useOneMonitor(0, 0, 640, 480);
  const auto world = initializedWorld();
  EXPECT_FLOAT_EQ(448.0F, world->moon().x);
  EXPECT_FLOAT_EQ(57.6F, world->moon().y);
  EXPECT_FLOAT_EQ(0.1F, world->moon().speedX);
  EXPECT_FLOAT_EQ(0.0F, world->moon().speedY);
}

TEST_F(WorldLabels, PutTheMoonWhollyOnTheMainMonitor) {
  useOneMonitor(20, 100, 320, 240);
  const auto world = initializedWorld();
  EXPECT_FLOAT_EQ(290.0F, world->moon().x);
  EXPECT_FLOAT_EQ(100.0F, world->moon().y);
}

TEST_F(WorldLabels, FindTheMainMonitorInAWindowThatBeginsLeftOfIt) {
  useOneMonitor(0, 0, 320, 240);
  const auto world = initializedWorld(640, 240, 0, -320, 0);
  EXPECT_FLOAT_EQ(448.0F, world->moon().x);
}

TEST_F(WorldLabels, PutAMoonThatIsTooLargeAtTheTopLeftOfTheMonitor) {
  xplUserSettings().set("moonSize", 300);
  useOneMonitor(20, 10, 320, 240);
  const auto world = initializedWorld();
  EXPECT_FLOAT_EQ(40.0F, world->moon().x);
  EXPECT_FLOAT_EQ(10.0F, world->moon().y);
}

TEST_F(WorldLabels, KeepTheMoonInTheWindowWhereThereIsNoMonitor) {
  monitors.clear();
  const auto world = initializedWorld();
  EXPECT_FLOAT_EQ(448.0F, world->moon().x);
}

TEST_F(WorldLabels, TurnTheMoonBackAtTheMonitorsEdge) {
  useOneMonitor(0, 0, 500, 480);
  const auto world = initializedWorld();
  for (int i = 0; i < 40; ++i) {
    world->update(1.0F);
  }
  EXPECT_FLOAT_EQ(-0.1F, world->moon().speedX);
  EXPECT_LT(world->moon().getRight(), 500.5);
}

TEST_F(WorldLabels, TheMoonFollowsTheMainMonitorAndBouncesInItFromThenOn) {
  useOneMonitor(320, 0, 320, 480);
  const auto world = initializedWorld();
  EXPECT_FLOAT_EQ(448.0F, world->moon().x);
  useOneMonitor(0, 100, 320, 240);
  world->followMonitors();
  EXPECT_FLOAT_EQ(270.0F, world->moon().x);
  EXPECT_FLOAT_EQ(100.0F, world->moon().y);
  EXPECT_EQ(320, world->mainMonitorRect().width);
  for (int i = 0; i < 40; ++i) {
    world->update(1.0F);
  }
  EXPECT_FLOAT_EQ(-0.1F, world->moon().speedX);
  EXPECT_LT(world->moon().getRight(), 320.5);
}

TEST_F(WorldLabels, TheMoonStaysWhereItsPlaceIsStillOnTheMainMonitor) {
  useOneMonitor(0, 0, 640, 480);
  const auto world = initializedWorld();
  useOneMonitor(300, 0, 340, 400);
  world->followMonitors();
  EXPECT_FLOAT_EQ(448.0F, world->moon().x);
  EXPECT_FLOAT_EQ(57.6F, world->moon().y);
}

TEST_F(WorldLabels, TheMoonFollowsTheFirstMonitorThatTheWindowReaches) {
  useOneMonitor(320, 0, 320, 480);
  const auto world = initializedWorld();
  monitors = {xplRect<int>(0, 640, 320, 240), xplRect<int>(0, 0, 320, 240)};
  world->followMonitors();
  EXPECT_FLOAT_EQ(270.0F, world->moon().x);
  EXPECT_EQ(0, world->mainMonitorRect().left);
}

TEST_F(WorldLabels, TheMoonStaysWhereTheWindowReachesNoMonitor) {
  useOneMonitor(320, 0, 320, 480);
  const auto world = initializedWorld();
  for (const std::vector<xplRect<int>>& list :
       {std::vector<xplRect<int>>{}, std::vector<xplRect<int>>{xplRect<int>(0, 640, 320, 240)}}) {
    monitors = list;
    world->followMonitors();
    EXPECT_FLOAT_EQ(448.0F, world->moon().x);
    EXPECT_EQ(320, world->mainMonitorRect().left);
  }
}

TEST_F(WorldLabels, InThePreviewTheMoonFollowsNoMonitor) {
  useOneMonitor(0, 0, 1920, 1080);
  const auto world = initializedWorld(152, 112, TnoctisWorld::previewMonitorId);
  useOneMonitor(0, 0, 60, 60);
  world->followMonitors();
  EXPECT_FLOAT_EQ(102.0F, world->moon().x);
}

TEST_F(WorldLabels, WithoutAWindowNoMonitorIsFollowed) {
  TnoctisWorld world(nullptr, 0, monitors, "");
  world.followMonitors();
  EXPECT_EQ(0, world.mainMonitorRect().width);
}

TEST_F(WorldLabels, InThePreviewShowASmallMoonInsideTheWindow) {
  xplUserSettings().set("moonSize", 300);
  useOneMonitor(0, 0, 1920, 1080);
  const auto world = initializedWorld(152, 112, TnoctisWorld::previewMonitorId, 500, 300);
  EXPECT_FLOAT_EQ(50.0F, world->moon().width);
  EXPECT_FLOAT_EQ(102.0F, world->moon().x);
  for (int i = 0; i < 100; ++i) {
    world->update(1.0F);
  }
  EXPECT_LT(world->moon().getRight(), 152.5);
}

TEST_F(WorldLabels, SayInTheLogThatTheMoonIsDisabled) {
  xplUserSettings().set("showMoon", false);
  const auto world = initializedWorld();
  EXPECT_EQ(1U, countEntriesWith("moon is disabled"));
  EXPECT_FALSE(world->moonInfoLabel().isEnabled());
}

}  // namespace
