// How the collection is built and drawn from.
#include <algorithm>
#include <cstring>
#include <set>

#include "quotes/builtInQuotes.h"
#include "quotes/quotesFixture.h"
#include "support/assertion.h"
#include "support/random.h"

namespace {

const std::string emptyDrawEntry =
    "Assertion failed: false && \"#8762: xplVectorAsDB.getRandom() in empty vector\", "
    "#8762: xplVectorAsDB.getRandom() in empty vector, source cQuotes, line 41";

TEST_F(Quotes, TheListHoldsTheBuiltInQuotesThenTheUsers) {
  writeFile(userFile(), "mine\nand mine\n");
  const auto list = cQuotes::loadQuotes();
  ASSERT_EQ(builtInQuotes.size() + 2, list.size());
  for (std::size_t i = 0; i < builtInQuotes.size(); ++i) {
    ASSERT_EQ(builtInQuotes[i].category, list[i].category);
    ASSERT_EQ(builtInQuotes[i].text, list[i].text);
  }
  EXPECT_STREQ("mine", list[builtInQuotes.size()].text);
  EXPECT_STREQ("and mine", list[builtInQuotes.size() + 1].text);
  EXPECT_EQ(1, countEntries("cQuotes::quotesList() loaded 244 quotes", "Info"));
}

TEST_F(Quotes, TheListIsTheSameAtEveryCall) {
  EXPECT_EQ(&cQuotes::quotesList(), &cQuotes::quotesList());
}

TEST_F(Quotes, AreCountedByCategory) {
  freshList("a\nb\nc\n");
  EXPECT_EQ(3U, cQuotes::countQuotes(quoteCategory::user));
  EXPECT_EQ(48U, cQuotes::countQuotes(1));
  EXPECT_EQ(93U, cQuotes::countQuotes(2));
  EXPECT_EQ(11U, cQuotes::countQuotes(3));
  EXPECT_EQ(25U, cQuotes::countQuotes(4));
  EXPECT_EQ(26U, cQuotes::countQuotes(5));
  EXPECT_EQ(6U, cQuotes::countQuotes(6));
  EXPECT_EQ(3U, cQuotes::countQuotes(7));
  EXPECT_EQ(30U, cQuotes::countQuotes(8));
  EXPECT_EQ(0U, cQuotes::countQuotes(9));
}

TEST_F(Quotes, KeptTextAnswersWhereNoCategoryIsAllowed) {
  freshList();
  const std::uint32_t state = xplRandom::state();
  EXPECT_STREQ("empty allowedCategories", cQuotes::getNextQuote({}));
  EXPECT_EQ(state, xplRandom::state());
}

TEST_F(Quotes, KeptTextAnswersWhereTheListIsEmpty) {
  cQuotes::quotesList() = {};
  EXPECT_STREQ("empty quotesDynamicList", cQuotes::getNextQuote({1}));
  EXPECT_STREQ("empty allowedCategories", cQuotes::getNextQuote({})) << "which is looked at first";
  EXPECT_EQ(0, countEntries(emptyDrawEntry));
}

TEST_F(Quotes, AreOfAnAllowedCategoryAndStayInTheList) {
  const auto& list = freshList("mine\n");
  const std::size_t size = list.size();
  for (int i = 0; i < 300; ++i) {
    const char* text = cQuotes::getNextQuote({1, 2, 3, 4, 5, 6, 7, 8, 10});
    ASSERT_NE('\0', *text);
  }
  EXPECT_EQ(size, list.size());
}

TEST_F(Quotes, AreDrawnByOneDrawModuloTheSizeOfTheList) {
  const auto& list = freshList();
  xplRandom::seed(77);
  const std::size_t index = static_cast<std::size_t>(xplRandom::next()) % list.size();
  xplRandom::seed(77);
  EXPECT_EQ(list[index].text, cQuotes::getNextQuote({1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(Quotes, ADisallowedCategoryThatIsHitLeavesTheListForGood) {
  auto& list = freshList();
  // Seeds are tried until the first draw hits love, and the second wisdom.
  const auto hits = [&list](std::uint32_t seed) {
    xplRandom::seed(seed);
    const auto draw = static_cast<std::size_t>(xplRandom::next());
    return list[draw % list.size()].category == quoteCategory::love;
  };
  std::uint32_t seed = 1;
  while (!hits(seed)) {
    ++seed;
  }
  xplRandom::seed(seed);
  const char* text = cQuotes::getNextQuote({quoteCategory::wisdom});
  EXPECT_TRUE(std::any_of(builtInQuotes.begin(), builtInQuotes.end(), [text](const sQuote& quote) {
    return quote.text == text && quote.category == quoteCategory::wisdom;
  }));
  EXPECT_EQ(0U, countOf(list, quoteCategory::love));
  EXPECT_EQ(93U, countOf(list, quoteCategory::wisdom));
  for (int i = 0; i < 50; ++i) {
    cQuotes::getNextQuote({quoteCategory::love, quoteCategory::wisdom});
  }
  EXPECT_EQ(0U, countOf(list, quoteCategory::love)) << "allowing it again does not bring it back";
}

TEST_F(Quotes, AllowedAloneWithoutAnyEmptyTheListAndGiveAnEmptyText) {
  const auto& list = freshList();
  EXPECT_STREQ("", cQuotes::getNextQuote({quoteCategory::user}));
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(xplAssertionsReport ? 1 : 0, countEntries(emptyDrawEntry, "ERROR"));
  EXPECT_STREQ("empty quotesDynamicList", cQuotes::getNextQuote({quoteCategory::user}));
}

TEST_F(Quotes, OfTheUserAreReachedAfterAtMostEightPurges) {
  const auto& list = freshList("mine\n");
  EXPECT_STREQ("mine", cQuotes::getNextQuote({quoteCategory::user}));
  EXPECT_GE(list.size(), 1U);
}

TEST_F(Quotes, KeptFallbackGivesTheEleventhDrawAlthoughItIsNotAllowed) {
  auto& list = cQuotes::quotesList();
  list = {};
  for (std::int32_t category = 101; category <= 112; ++category) {
    list.append({category, "not allowed"});
  }
  EXPECT_STREQ("not allowed", cQuotes::getNextQuote({1}));
  EXPECT_EQ(1U, list.size()) << "eleven categories were hit, and left";
}

TEST_F(Quotes, KeptFallbackNeedsMoreCategoriesThanDraws) {
  const auto& list = freshList("mine\n");
  EXPECT_STREQ("", cQuotes::getNextQuote({99})) << "nine categories are gone before the eleventh draw";
  EXPECT_TRUE(list.empty());
}

TEST_F(Quotes, KeptPurgeOutlivesTheSettingThatCausedIt) {
  auto& list = cQuotes::quotesList();
  list = {};
  list.append({quoteCategory::love, "love"});
  EXPECT_STREQ("", cQuotes::getNextQuote({quoteCategory::wisdom}));
  EXPECT_STREQ("empty quotesDynamicList", cQuotes::getNextQuote({quoteCategory::love}));
}

TEST_F(Quotes, KeptCategoriesWithoutASettingLeaveLikeTheOthers) {
  auto& list = cQuotes::quotesList();
  list = {};
  list.append({quoteCategory::dreams, "a dream"});
  EXPECT_STREQ("", cQuotes::getNextQuote({quoteCategory::love}));
  EXPECT_TRUE(list.empty());
}

TEST_F(Quotes, AreDrawnWithRepetition) {
  auto& list = cQuotes::quotesList();
  list = {};
  list.append({1, "a"});
  list.append({1, "b"});
  int repeated = 0;
  std::string last;
  for (int i = 0; i < 100; ++i) {
    const std::string text = cQuotes::getNextQuote({1});
    repeated += text == last ? 1 : 0;
    last = text;
  }
  EXPECT_GT(repeated, 20);
  EXPECT_LT(repeated, 80);
}

}  // namespace
