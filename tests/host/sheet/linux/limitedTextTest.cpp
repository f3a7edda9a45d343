// Tests how a text from an edit field is cut to what is kept.
#include <gtest/gtest.h>

#include "host/sheet/linux/messageEdit.h"
#include "host/sheet/messageText.h"

namespace {

TEST(LimitedText, CutsNoLetterInTwo) {
  const QString moon = QString::fromUtf8("🌙");  // two UTF-16 units
  const QString text = QString(static_cast<int>(maxMessageCharacters) - 1, 'a') + moon;
  EXPECT_EQ(limitedText(text), std::string(maxMessageCharacters - 1, 'a'));
  EXPECT_EQ(limitedText(text.mid(1)), std::string(maxMessageCharacters - 2, 'a') + "🌙");
  EXPECT_EQ(limitedText(""), "");
}

}  // namespace
