// The moon, the text beside it and the quotes stand where they belong in the sky.
#include <string>

#include "harness/privateFolders.h"
#include "worldFixture.h"

namespace {

class WorldLabels : public World {
 protected:
  WorldLabels() {
    xplUserSettings().set("background", 0);
    xplUserSettings().set("msg_defaultMessagesAdded", true);
    xplUserSettings().set("moonSize", 50);
  }

  std::unique_ptr<TnoctisWorld> initializedWorld(int width = 640, int height = 480,
                                                 std::int32_t monitorId = 0, int left = 0, int top = 0) {
    auto world = makeWorld(width, height, left, top, monitorId);
    world->initializeWorld();
    return world;
  }

  void useOneMonitor(int left, int top, int width, int height) {
    monitors = {xplRect<int>(top, left, width, height)};
  }
};

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

TEST_F(WorldLabels, ShowNoTextWithoutAnyContent) {
  xplUserSettings().set("showMoonPhasePercentAndDegrees", false);
  xplUserSettings().set("showMoonPhaseName", false);
  xplUserSettings().set("showNotableDates", false);
  EXPECT_FALSE(initializedWorld()->moonInfoLabel().isEnabled());
  xplUserSettings().set("showNotableDates", true);
  EXPECT_TRUE(initializedWorld()->moonInfoLabel().isEnabled());
}

TEST_F(WorldLabels, CentreTheTextUnderTheMoonWhileItIsTyped) {
  useOneMonitor(0, 0, 640, 480);
  const auto world = initializedWorld();
  float lastWidth = 0.0F;
  int widths = 0;
  for (int i = 0; i < 60; ++i) {
    world->update(0.04F);
    const auto& label = world->moonInfoLabel();
    const auto& moon = world->moon();
    EXPECT_FLOAT_EQ(moon.x + (moon.width - label.width) * 0.5F, label.x);
    EXPECT_FLOAT_EQ(static_cast<float>(moon.getBottom()), label.y);
    widths += label.width != lastWidth ? 1 : 0;
    lastWidth = label.width;
  }
  EXPECT_GT(widths, 1);
}

TEST_F(WorldLabels, InThePreviewWriteTheTextInAThirdOfItsSize) {
  EXPECT_EQ(11, initializedWorld()->moonInfoLabel().style.fontSize);
  EXPECT_EQ(3, initializedWorld(152, 112, TnoctisWorld::previewMonitorId)->moonInfoLabel().style.fontSize);
}

TEST_F(WorldLabels, ShowNoQuotesUntilACategoryIsOn) {
  EXPECT_FALSE(initializedWorld()->quotesLabel().isEnabled());
  xplUserSettings().set("showQuotes_Wisdom", true);
  EXPECT_TRUE(initializedWorld()->quotesLabel().isEnabled());
}

TEST_F(WorldLabels, NeverShowQuotesInThePreview) {
  xplUserSettings().set("showQuotes_Wisdom", true);
  xplUserSettings().set("showQuotes_UserQuotes", true);
  EXPECT_FALSE(initializedWorld(152, 112, TnoctisWorld::previewMonitorId)->quotesLabel().isEnabled());
  EXPECT_EQ(0, countEntriesWith("loading user quotes from file:")) << "they may be many";
}

TEST_F(WorldLabels, GiveQuotesTheWindowWithAMargin) {
  xplUserSettings().set("showQuotes_Wisdom", true);
  const auto world = initializedWorld();
  const auto& area = world->quotesLabel().renderRect;
  EXPECT_FLOAT_EQ(20.0F, area.left);
  EXPECT_FLOAT_EQ(10.0F, area.top);
  EXPECT_FLOAT_EQ(620.0F, area.width);
  EXPECT_FLOAT_EQ(440.0F, area.height);
}

TEST_F(WorldLabels, KeepQuotesClearOfTheMoonAndItsTextWhereverTheyAre) {
  xplUserSettings().set("showQuotes_Wisdom", true);
  useOneMonitor(0, 0, 640, 480);
  const auto world = initializedWorld();
  EXPECT_FLOAT_EQ(448.0F, world->quotesLabel().avoidRect1.left);
  world->update(10.0F);
  const auto& quotes = world->quotesLabel();
  EXPECT_FLOAT_EQ(449.0F, quotes.avoidRect1.left);
  EXPECT_FLOAT_EQ(50.0F, quotes.avoidRect1.width);
  EXPECT_FLOAT_EQ(world->moonInfoLabel().x, quotes.avoidRect2.left);
  EXPECT_GT(quotes.avoidRect2.width, 0.0F);
  EXPECT_FLOAT_EQ(world->moonInfoLabel().height, quotes.avoidRect2.height);
}

}  // namespace
