// When quotes appear, and which.
#include <utility>

#include "quotes/quotesLabelFixture.h"
#include "support/settings.h"

namespace {

const char* fail(const std::vector<std::int32_t>&) {
  throw std::runtime_error("no quotes today");
}

TEST_F(QuotesLabel, IsNamed) {
  EXPECT_STREQ("quotesLabel", label.name());
}

TEST_F(QuotesLabel, TheFirstQuoteBeginsAfterFiveSeconds) {
  run(124);
  EXPECT_EQ(0, timesAsked);
  EXPECT_EQ(0, label.state());
  const int frames = 124 + framesUntilNextQuote();
  EXPECT_NEAR(125, frames, 2);
  EXPECT_EQ(1, label.state());
  EXPECT_EQ("first line", label.text());
}

TEST_F(QuotesLabel, TheNextQuoteBeginsThreeSecondsAfterTheLastHasFadedOut) {
  framesUntilNextQuote();
  while (!label.isDone()) {
    label.update(frame);
    ASSERT_EQ(1, timesAsked);
  }
  EXPECT_NEAR(75, framesUntilNextQuote(), 1);
  EXPECT_EQ(1, label.state());
  EXPECT_EQ(2, timesAsked);
}

TEST_F(QuotesLabel, AsksForTheCategoriesThatTheSettingsAllow) {
  label.loadNextQuote();
  EXPECT_TRUE(askedFor.empty());
  for (const char* key : {"showQuotes_Love", "showQuotes_Wisdom", "showQuotes_Advice", "showQuotes_Funny",
                          "showQuotes_WomenVSMen", "showQuotes_Peace", "showQuotes_UserQuotes"}) {
    xplUserSettings().set(key, true);
  }
  label.loadNextQuote();
  EXPECT_EQ((std::vector<std::int32_t>{4, 2, 8, 3, 5, 1, 10}), askedFor);
}

TEST_F(QuotesLabel, AsksForEachCategoryByItsOwnSetting) {
  const std::vector<std::pair<const char*, std::int32_t>> categories = {
      {"showQuotes_Love", 1},       {"showQuotes_Wisdom", 2}, {"showQuotes_WomenVSMen", 3},
      {"showQuotes_Advice", 4},     {"showQuotes_Funny", 5},  {"showQuotes_Peace", 8},
      {"showQuotes_UserQuotes", 10}};
  for (const auto& [key, category] : categories) {
    xplUserSettings().set(key, true);
    label.loadNextQuote();
    EXPECT_EQ(std::vector<std::int32_t>{category}, askedFor) << key;
    xplUserSettings().set(key, false);
  }
}

TEST_F(QuotesLabel, LogsWhatItShows) {
  label.loadNextQuote();
  label.selectRandomPosition();
  EXPECT_EQ(1, countEntries("Entering: loadNextQuote()"));
  EXPECT_EQ(1, countEntries("getNextQuote() returned:first line|second line", "Info"));
  EXPECT_EQ(1, countEntries("Exiting: loadNextQuote()"));
  EXPECT_EQ(1, countEntries("selecting random position for quote:first line", "Info"));
}

TEST_F(QuotesLabel, KeptPlaceholdersAreShownLikeQuotes) {
  cQuotesSprite real;
  real.setRenderWindow(&window);
  freshList();
  real.loadNextQuote();
  EXPECT_EQ("empty allowedCategories", real.text());
  xplUserSettings().set("showQuotes_Love", true);
  cQuotes::quotesList() = {};
  real.loadNextQuote();
  EXPECT_EQ("empty quotesDynamicList", real.text());
}

TEST_F(QuotesLabel, AnEmptyQuoteTakesThePlaceOfTheLast) {
  label.loadNextQuote();
  nextText = "";
  label.loadNextQuote();
  EXPECT_EQ("", label.text());
  EXPECT_EQ(nullptr, label.next());
}

TEST_F(QuotesLabel, AnExceptionIsLoggedAndEndsNothing) {
  cQuotesSprite failing(fail);
  failing.setRenderWindow(&window);
  failing.loadNextQuote();
  EXPECT_EQ(1, countEntries("getNextQuote() exception", "ERROR"));
  EXPECT_EQ("", failing.text());
  EXPECT_EQ(0, countEntries("getNextQuote() returned:"));
}

TEST_F(QuotesLabel, TakesItsStyleAndReadsTheCollectionWhenItIsInitialized) {
  cQuotesSprite real;
  real.initialize(&window);
  EXPECT_EQ(&window, real.renderWindow());
  EXPECT_EQ(16, real.style.fontSize);
  EXPECT_FALSE(real.style.useWindowFontSize);
  EXPECT_FALSE(real.style.useWindowFont);
  EXPECT_NE("", real.style.fontName);
  EXPECT_EQ(xplColor(235, 225, 200), real.fullColor());
}

TEST_F(QuotesLabel, IsDrawnOnTheWindowInItsColour) {
  framesUntilNextQuote();
  run(60);
  label.draw();
  const int drawn = drawnPixels();
  EXPECT_GT(drawn, 50);
  const int top = static_cast<int>(label.y);
  EXPECT_EQ(drawn, drawnPixels(top, top + static_cast<int>(label.height) + 1))
      << "the second line is too dim";
  int full = 0;
  for (int y = 0; y < 480; ++y) {
    for (int x = 0; x < 640; ++x) {
      full += window.getPixel(x, y) == xplColor(235, 225, 200) ? 1 : 0;
    }
  }
  EXPECT_GT(full, 5);
}

}  // namespace
