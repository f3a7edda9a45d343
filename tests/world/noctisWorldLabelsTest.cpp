// The text beside the moon and the quotes stand where they belong in the sky.
#include "worldLabelsFixture.h"

namespace {

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
