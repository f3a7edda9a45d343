// Where quotes in the system code page are cut.
#include <string>

#include <gtest/gtest.h>

#include "graphics/windows/gdi.h"
#include "quotes/platform.h"

namespace {

TEST(QuoteLinesWin, AreCutBetweenTheCharactersOfTheCodePage) {
  // In a code page of single bytes each is a character; in one of double bytes the two of a pair stay
  // together.
  const std::string text = "a\x83\x83\x83z";
  const bool pairs = IsDBCSLeadByte(0x83) != FALSE;
  EXPECT_EQ(0U, quotesPlatform::bytesOfWholeCharacters(text, 0));
  EXPECT_EQ(1U, quotesPlatform::bytesOfWholeCharacters(text, 1));
  EXPECT_EQ(pairs ? 1U : 2U, quotesPlatform::bytesOfWholeCharacters(text, 2));
  EXPECT_EQ(3U, quotesPlatform::bytesOfWholeCharacters(text, 3));
  EXPECT_EQ(pairs ? 3U : 4U, quotesPlatform::bytesOfWholeCharacters(text, 4));
  EXPECT_EQ(5U, quotesPlatform::bytesOfWholeCharacters(text, 5));
  EXPECT_EQ(5U, quotesPlatform::bytesOfWholeCharacters(text, 6));
}

}  // namespace
