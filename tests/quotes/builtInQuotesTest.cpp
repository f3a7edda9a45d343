// What the built-in quotes must be, whatever they say.
#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <set>

#include "quotes/builtInQuotes.h"
#include "quotes/quoteLines.h"
#include "quotes/quotesFixture.h"
#include "quotes/quotesStyle.h"
#include "quotes/spriteParagraphDimming.h"

namespace {

// The words of a quote in small letters, without those that every text is full of.
std::set<std::string> wordsOf(const char* text) {
  static const std::set<std::string> common = {
      "a",    "an",   "and",  "are", "as",  "at",  "be",   "been", "but",  "by",  "for",  "from", "had",
      "has",  "have", "he",   "her", "him", "his", "i",    "if",   "in",   "is",  "it",   "its",  "me",
      "my",   "no",   "not",  "of",  "on",  "one", "or",   "our",  "she",  "so",  "that", "the",  "their",
      "them", "they", "this", "to",  "was", "we",  "were", "what", "when", "who", "with", "you",  "your"};
  std::set<std::string> words;
  std::string word;
  for (const char* place = text;; ++place) {
    if (std::isalpha(static_cast<unsigned char>(*place)) != 0) {
      word += static_cast<char>(std::tolower(static_cast<unsigned char>(*place)));
      continue;
    }
    if (!word.empty() && common.count(word) == 0) {
      words.insert(word);
    }
    word.clear();
    if (*place == '\0') {
      return words;
    }
  }
}

TEST(BuiltInQuotes, AreAsManyOfEachCategoryAsThereShouldBe) {
  std::map<std::int32_t, int> counts;
  for (const sQuote& quote : builtInQuotes) {
    ++counts[quote.category];
  }
  const std::map<std::int32_t, int> expected = {{1, 48}, {2, 93}, {3, 11}, {4, 25},
                                                {5, 26}, {6, 6},  {7, 3},  {8, 30}};
  EXPECT_EQ(expected, counts);
  EXPECT_EQ(242U, builtInQuotes.size());
}

TEST(BuiltInQuotes, MixTheirCategories) {
  std::size_t longestRun = 0;
  std::size_t run = 0;
  for (std::size_t i = 0; i < builtInQuotes.size(); ++i) {
    run = i > 0 && builtInQuotes[i].category == builtInQuotes[i - 1].category ? run + 1 : 1;
    longestRun = std::max(longestRun, run);
  }
  EXPECT_LE(longestRun, 3U);
  // Each half of the table holds about half of each large category.
  for (const std::int32_t category : {1, 2, 4, 5, 8}) {
    const auto is = [category](const sQuote& quote) { return quote.category == category; };
    const auto all = std::count_if(builtInQuotes.begin(), builtInQuotes.end(), is);
    const auto first = std::count_if(builtInQuotes.begin(), builtInQuotes.begin() + 121, is);
    EXPECT_NEAR(static_cast<double>(all) / 2.0, static_cast<double>(first), 1.5) << category;
  }
}

TEST(BuiltInQuotes, AreWrittenInCharactersThatEveryPlatformReadsAlike) {
  for (const sQuote& quote : builtInQuotes) {
    for (const char* place = quote.text; *place != '\0'; ++place) {
      ASSERT_TRUE(*place >= ' ' && *place <= '~') << quote.text;
    }
  }
}

TEST(BuiltInQuotes, HaveNoEmptyLinesAndNoStraySpaces) {
  for (const sQuote& quote : builtInQuotes) {
    for (const std::string& line : quoteLines(quote.text)) {
      ASSERT_FALSE(line.empty()) << quote.text;
      EXPECT_NE(' ', line.front()) << quote.text;
      EXPECT_NE(' ', line.back()) << quote.text;
      EXPECT_EQ(std::string::npos, line.find("  ")) << quote.text;
    }
  }
}

TEST(BuiltInQuotes, NameTheirSourceInTheLastLineOnly) {
  for (const sQuote& quote : builtInQuotes) {
    std::vector<std::string> lines = quoteLines(quote.text);
    if (lines.size() > 1 && lines.back().front() == '(') {
      EXPECT_EQ(')', lines.back().back()) << quote.text;
      lines.pop_back();
    }
    for (const std::string& line : lines) {
      EXPECT_EQ(std::string::npos, line.find_first_of("()")) << quote.text;
    }
  }
}

TEST(BuiltInQuotes, AreAllDifferent) {
  std::set<std::string> texts;
  std::set<std::string> openings;
  for (const sQuote& quote : builtInQuotes) {
    EXPECT_TRUE(texts.insert(quote.text).second) << quote.text;
    EXPECT_TRUE(openings.insert(quoteLines(quote.text).front()).second) << quote.text;
  }
}

TEST(BuiltInQuotes, ShareFewWordsWithEachOther) {
  for (std::size_t i = 0; i < builtInQuotes.size(); ++i) {
    const std::set<std::string> words = wordsOf(builtInQuotes[i].text);
    for (std::size_t j = i + 1; j < builtInQuotes.size(); ++j) {
      const std::set<std::string> others = wordsOf(builtInQuotes[j].text);
      std::vector<std::string> shared;
      std::set_intersection(words.begin(), words.end(), others.begin(), others.end(),
                            std::back_inserter(shared));
      const std::size_t smaller = std::min(words.size(), others.size());
      EXPECT_LE(shared.size(), std::max<std::size_t>(smaller / 3, 3)) << builtInQuotes[i].text << "\n"
                                                                      << builtInQuotes[j].text;
    }
  }
}

class BuiltInQuotesOnAWindow : public QuotesOnAWindow {};

TEST_F(BuiltInQuotesOnAWindow, FitIntoTheSmallestFullScreen) {
  // The area for quotes begins 20 pixels from the left of a window 1280 wide, and is 20 narrower than it.
  constexpr float areaWidth = 1260.0F;
  constexpr float areaHeight = 1024.0F - 40.0F;
  for (const sQuote& quote : builtInQuotes) {
    cSpriteParagraphDimming paragraph("p");
    paragraph.setStyle(quotesStyle());
    paragraph.setRenderWindow(&window);
    paragraph.setParagraph(quoteLines(quote.text));
    EXPECT_GT(paragraph.paragraphRect().width, 50.0F) << quote.text;
    EXPECT_LE(paragraph.paragraphRect().width, areaWidth) << quote.text;
    EXPECT_LE(paragraph.paragraphRect().height, areaHeight) << quote.text;
  }
}

// Where a quote stands, and with it every draw that follows, depends on its size. The faces are those that
// the tests map on Windows; another face with the same name would differ.
TEST_F(BuiltInQuotesOnAWindow, AreOfTheSameSizeOnEveryPlatform) {
  cSpriteParagraphDimming paragraph("p");
  paragraph.setStyle(quotesStyle());
  paragraph.setRenderWindow(&window);
  paragraph.setParagraph(
      {"The quick onyx goblin, AVAST! jumps over", "\"a lazy dwarf\" (to WAIT; 1234567890)"});
  EXPECT_FLOAT_EQ(383.0F, paragraph.paragraphRect().width);
  EXPECT_FLOAT_EQ(48.0F, paragraph.paragraphRect().height);
}

}  // namespace
