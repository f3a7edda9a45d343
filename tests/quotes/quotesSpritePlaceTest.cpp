// Where quotes appear.
#include "quotes/quotesLabelFixture.h"
#include "sprites/wholePixel.h"

namespace {

TEST_F(QuotesLabel, DrawsXThenY) {
  label.loadNextQuote();
  xplRandom::seed(9);
  const float r1 = xplRandom::unit();
  const float r2 = xplRandom::unit();
  xplRandom::seed(9);
  label.selectRandomPosition();
  const auto& rect = label.paragraphRect();
  EXPECT_FLOAT_EQ(r1 * ((640.0F - rect.width) - 20.0F) + 20.0F, rect.left);
  EXPECT_FLOAT_EQ(r2 * ((450.0F - rect.height) - 10.0F) + 10.0F, rect.top);
  EXPECT_EQ(1, countTries());
  EXPECT_EQ(1, countEntries("m_renderRect.top: 10, m_renderRect.getBottom(): 450", "Info"));
  EXPECT_EQ(1,
            countEntries(stringFormat("x: %i, width:%i, y:%i, height:%i", wholePixel(rect.left),
                                      wholePixel(rect.width), wholePixel(rect.top), wholePixel(rect.height)),
                         "Info"));
}

TEST_F(QuotesLabel, BeginsWhereThePlaceWasChosen) {
  framesUntilNextQuote();
  ASSERT_EQ(1, timesAsked);
  const std::string place = stringFormat("x: %i, width:%i, y:%i, height:%i", wholePixel(label.x),
                                         wholePixel(label.paragraphRect().width), wholePixel(label.y),
                                         wholePixel(label.paragraphRect().height));
  EXPECT_GE(countEntries(place), 1);
}

TEST_F(QuotesLabel, LiesInsideTheArea) {
  for (int i = 0; i < 100; ++i) {
    label.loadNextQuote();
    label.selectRandomPosition();
    const auto& rect = label.paragraphRect();
    ASSERT_GE(rect.left, 20.0F);
    ASSERT_GE(rect.top, 10.0F);
    ASSERT_LE(rect.getRight(), 640.0);
    ASSERT_LE(rect.getBottom(), 450.0);
  }
}

TEST_F(QuotesLabel, KeepsClearOfBothOtherAreas) {
  label.avoidRect1 = xplRect<float>(0.0F, 0.0F, 300.0F, 480.0F);
  label.avoidRect2 = xplRect<float>(250.0F, 0.0F, 640.0F, 230.0F);
  label.loadNextQuote();
  int clear = 0;
  for (int i = 0; i < 200; ++i) {
    label.selectRandomPosition();
    const auto& rect = label.paragraphRect();
    clear += rect.left > 300.0F && rect.getBottom() < 250.0 ? 1 : 0;
  }
  EXPECT_GT(clear, 150) << "eleven tries find a place nearly always";
  EXPECT_GT(countTries(), 250);
}

TEST_F(QuotesLabel, KeptEleventhPlaceIsTakenWhereNoneIsFree) {
  label.avoidRect1 = xplRect<float>(0.0F, 0.0F, 640.0F, 480.0F);
  label.loadNextQuote();
  xplRandom::seed(9);
  for (int i = 0; i < 20; ++i) {
    xplRandom::next();
  }
  const float r1 = xplRandom::unit();
  xplRandom::next();
  const std::uint32_t stateAfter = xplRandom::state();
  xplRandom::seed(9);
  label.selectRandomPosition();
  EXPECT_EQ(11, countTries());
  EXPECT_EQ(stateAfter, xplRandom::state());
  EXPECT_FLOAT_EQ(r1 * ((640.0F - label.paragraphRect().width) - 20.0F) + 20.0F, label.paragraphRect().left);
}

TEST_F(QuotesLabel, TouchingAnAreaCountsAsOverlappingIt) {
  nextText = "H";
  label.loadNextQuote();
  const float width = label.paragraphRect().width;
  const float height = label.paragraphRect().height;
  // There is one place only, at (20, 10).
  label.renderRect = xplRect<float>(10.0F, 20.0F, width, height);
  label.avoidRect1 = xplRect<float>(10.0F, 20.0F + width, 5.0F, height);
  label.selectRandomPosition();
  EXPECT_EQ(11, countTries());
  label.avoidRect1 = xplRect<float>(10.0F, 21.0F + width, 5.0F, height);
  label.selectRandomPosition();
  EXPECT_EQ(12, countTries());
  label.avoidRect2 = xplRect<float>(10.0F + height, 0.0F, 640.0F, 5.0F);
  label.selectRandomPosition();
  EXPECT_EQ(23, countTries());
}

TEST_F(QuotesLabel, AnAreaNarrowerThanTheParagraphGivesPlacesOutsideIt) {
  label.renderRect = xplRect<float>(10.0F, 20.0F, 5.0F, 440.0F);
  label.loadNextQuote();
  label.selectRandomPosition();
  EXPECT_EQ(11, countTries());
  EXPECT_LE(label.paragraphRect().left, 20.0F);
  EXPECT_GT(label.paragraphRect().getRight(), 25.0);
}

}  // namespace
