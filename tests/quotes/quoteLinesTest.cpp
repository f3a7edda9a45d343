// How quotes are taken apart into lines.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "quotes/quoteLines.h"

namespace {

using Lines = std::vector<std::string>;

TEST(QuoteLines, AreTheTextsBetweenTheBars) {
  EXPECT_EQ((Lines{"one", "two", "three"}), quoteLines("one|two|three"));
  EXPECT_EQ((Lines{"one"}), quoteLines("one"));
  EXPECT_EQ((Lines{" one ", " two"}), quoteLines(" one | two"));
}

TEST(QuoteLines, MayBeEmpty) {
  EXPECT_EQ((Lines{""}), quoteLines(""));
  EXPECT_EQ((Lines{"", ""}), quoteLines("|"));
  EXPECT_EQ((Lines{"", "a", "", "b", ""}), quoteLines("|a||b|"));
}

TEST(QuoteLines, OfOnlyBarsAreBoundInNumber) {
  const std::string bars(10'000'000, '|');
  EXPECT_EQ(maxQuoteLines, quoteLines(bars.c_str()).size());
  EXPECT_EQ(maxQuoteLines, quoteLines(bars.substr(0, maxQuoteLines - 1).c_str()).size());
  EXPECT_EQ(maxQuoteLines - 1, quoteLines(bars.substr(0, maxQuoteLines - 2).c_str()).size());
}

TEST(QuoteLines, ThatAreTooLongAreCutAndEndTheText) {
  const std::string longest(maxQuoteLineBytes, 'x');
  EXPECT_EQ((Lines{longest, "next"}), quoteLines((longest + "|next").c_str()));
  EXPECT_EQ((Lines{longest}), quoteLines((longest + "x|next").c_str()));
  EXPECT_EQ((Lines{"first", longest}), quoteLines(("first|" + std::string(10'000'000, 'x')).c_str()));
}

TEST(QuoteLines, TogetherAreBoundInLength) {
  const std::string line(1000, 'x');
  std::string text = line;
  for (int i = 0; i < 99; ++i) {
    text += "|" + line;
  }
  const Lines lines = quoteLines(text.c_str());
  ASSERT_EQ(9U, lines.size());
  EXPECT_EQ(line, lines[7]);
  EXPECT_EQ(std::string(maxQuoteBytes - 8000, 'x'), lines[8]);
}

TEST(QuoteLines, ThatHaveNoRoomLeftAreNotShownAsEmptyOnes) {
  const std::string longest(maxQuoteLineBytes, 'x');
  const std::string full = longest + "|" + longest;  // every byte that is shown
  EXPECT_EQ((Lines{longest, longest}), quoteLines(full.c_str()));
  EXPECT_EQ((Lines{longest, longest}), quoteLines((full + "|").c_str()));
  EXPECT_EQ((Lines{longest, longest}), quoteLines((full + "|next").c_str()));
  EXPECT_EQ((Lines{longest, longest}), quoteLines((full + "||||next").c_str()));
  EXPECT_EQ((Lines{longest, longest}), quoteLines((full + "x|next").c_str()));
}

TEST(QuoteLines, ThatAreEmptyTakeNoRoom) {
  const std::string longest(maxQuoteLineBytes, 'x');
  EXPECT_EQ((Lines{longest, "", "", longest}), quoteLines((longest + "|||" + longest + "|").c_str()));
}

}  // namespace
