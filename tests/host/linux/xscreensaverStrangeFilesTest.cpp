// Tests that any file of XScreenSaver's preferences, however strange, comes back as it was.
#include <algorithm>
#include <string>
#include <vector>

#include "host/linux/xscreensaverChoiceFixture.h"
#include "support/random.h"

using namespace xscreensaver;

namespace {

// Pieces of which every strange file can be made; none is an entry of ours.
const std::vector<std::string> tokens = {"mode",
                                         "selected",
                                         "programs",
                                         "PROGRAMS",
                                         "timeout",
                                         ":",
                                         ":",
                                         ": ",
                                         "\t",
                                         " ",
                                         "#",
                                         "\\",
                                         "\\\\",
                                         "\n",
                                         "\n",
                                         "\n",
                                         "\\\n",
                                         "\\n\\\n",
                                         "\\n",
                                         " \\n ",
                                         "one",
                                         "random",
                                         "0",
                                         "1",
                                         "-1",
                                         "maze --root",
                                         "- GL: b --root",
                                         "\"x y\" c",
                                         "\\t",
                                         "\r",
                                         "programs: ",
                                         "\nprograms: \\\n",
                                         "\nmode:\t",
                                         "\nselected: ",
                                         "\xff",
                                         "lunar --root"};

std::string randomText() {
  std::string text;
  const int length = xplRandom::next() % 24;
  for (int i = 0; i < length; ++i) {
    const auto token = static_cast<std::size_t>(xplRandom::next()) % tokens.size();
    text += tokens[token];
  }
  return text;
}

TEST(XscreensaverChoice, TakingOutUndoesChoosingForAnyText) {
  xplRandom::seed(20261121);
  int tried = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::string text = randomText();
    if (!isListBroken(text)) {
      expectRoundTrip(text);
      ++tried;
    }
    if (HasFailure()) {
      break;
    }
  }
  EXPECT_GT(tried, 15000);
}

TEST(XscreensaverChoice, TheOrderOfTheOtherEntriesNeverChanges) {
  xplRandom::seed(5);
  for (int i = 0; i < 5000; ++i) {
    const std::string text = randomText();
    if (isListBroken(text)) {
      continue;
    }
    const auto before = entriesOf(text);
    const auto after = entriesOf(chosenIn(text).text);
    ASSERT_EQ(after.size(), before.size() + 1) << testing::PrintToString(text);
    for (std::size_t entry = 0; entry < before.size(); ++entry) {
      ASSERT_EQ(after[entry].command, before[entry].command) << testing::PrintToString(text);
    }
  }
}

}  // namespace
