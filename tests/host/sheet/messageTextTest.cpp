// Tests the tidying of texts that were typed or pasted.
#include <gtest/gtest.h>

#include "host/sheet/messageText.h"

TEST(MessageText, EveryLineBreakBecomesAPair) {
  EXPECT_EQ(tidyMessage("a\nb\r\nc\rd\n\ne\r\n\r\nf"), "a\r\nb\r\nc\r\nd\r\n\r\ne\r\n\r\nf");
}

TEST(MessageText, TidyTextStaysAsItIs) {
  const std::string text = "Your message\r\nhere = \\ \"quoted\" %s";
  EXPECT_EQ(tidyMessage(text), text);
  EXPECT_EQ(tidyMessage(tidyMessage("x\ny")), "x\r\ny");
}

TEST(MessageText, TabsBecomeBlanks) {
  EXPECT_EQ(tidyMessage("a\tb"), "a b");
  EXPECT_EQ(tidyBottomLine("a\tb"), "a b");
}

TEST(MessageText, OtherControlCharactersAreLeftOut) {
  std::string text;
  for (char character = 1; character < ' '; ++character) {
    if (character != '\t' && character != '\r' && character != '\n') {
      text += character;
    }
  }
  text += '\0';
  text += "\x7f";
  EXPECT_EQ(tidyMessage("a" + text + "b"), "ab");
  EXPECT_EQ(tidyBottomLine("a" + text + "b"), "ab");
}

TEST(MessageText, BytesOfLettersBeyondAsciiStay) {
  const std::string text =
      "n\xC3\xA4"
      "chtlich \x80\xFF";
  EXPECT_EQ(tidyMessage(text), text);
}

TEST(MessageText, ABottomLineIsOneLine) {
  EXPECT_EQ(tidyBottomLine("a\r\nb\nc\rd"), "a b c d");
}

TEST(MessageText, NothingStaysNothing) {
  EXPECT_EQ(tidyMessage(""), "");
  EXPECT_EQ(tidyBottomLine(""), "");
}
