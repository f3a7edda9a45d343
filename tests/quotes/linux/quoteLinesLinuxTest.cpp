// Where quotes of UTF-8 are cut.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "quotes/platform.h"
#include "quotes/quoteLines.h"

namespace {

using Lines = std::vector<std::string>;

std::string repeated(const std::string& text, std::size_t times) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) {
    all += text;
  }
  return all;
}

TEST(QuoteLinesLinux, AreCutBeforeTheCharacterThatHasNoRoom) {
  const std::string cut(maxQuoteLineBytes - 1, 'x');
  for (const std::string character : {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x8C\x99"}) {
    EXPECT_EQ((Lines{cut}), quoteLines((cut + character + " and more|next").c_str())) << character;
  }
  const std::string euros = repeated("\xE2\x82\xAC", maxQuoteLineBytes / 3);
  EXPECT_EQ((Lines{euros}), quoteLines((euros + "\xE2\x82\xAC").c_str()));
}

TEST(QuoteLinesLinux, KeepTheCharacterThatEndsAtTheLimit) {
  const std::string accents = repeated("\xC3\xA9", maxQuoteLineBytes / 2);
  EXPECT_EQ((Lines{accents, "next"}), quoteLines((accents + "|next").c_str()));
  EXPECT_EQ((Lines{accents}), quoteLines((accents + "\xC3\xA9|next").c_str()));
}

TEST(QuoteLinesLinux, WhoseFirstCharacterHasNoRoomAreLeftOut) {
  const std::string longest(maxQuoteLineBytes, 'x');
  const std::string almost(maxQuoteLineBytes - 2, 'x');
  EXPECT_EQ((Lines{longest, almost}), quoteLines((longest + "|" + almost + "|\xE2\x82\xAC|next").c_str()));
  EXPECT_EQ((Lines{longest, almost, "\xC3\xA9"}),
            quoteLines((longest + "|" + almost + "|\xC3\xA9|next").c_str()));
}

TEST(QuoteLinesLinux, OfBytesThatAreNoTextAreCutAtTheLimit) {
  for (const std::string byte : {"\x80", "\xFF", "\xE2"}) {
    const std::string bytes = repeated(byte, maxQuoteLineBytes);
    EXPECT_EQ((Lines{bytes}), quoteLines((bytes + byte + byte).c_str()));
  }
}

TEST(QuoteLinesLinux, WholeCharactersAreFoundForEveryLimit) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8C\x99";  // begins at 0, 1, 3, 6; ends at 10
  const std::vector<std::size_t> expected = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 10};
  for (std::size_t limit = 0; limit < expected.size(); ++limit) {
    EXPECT_EQ(expected[limit], quotesPlatform::bytesOfWholeCharacters(text, limit)) << limit;
  }
}

}  // namespace
