// Tests the text of the About page.
#include <algorithm>
#include <sstream>

#include <gmock/gmock.h>

#include "host/sheet/aboutText.h"

using testing::HasSubstr;

TEST(AboutText, NamesTheProgramAndItsVersion) {
  EXPECT_THAT(aboutText("x.ini", " "), testing::StartsWith("Lunaria screensaver 5.4.1\n"));
}

TEST(AboutText, LinksToAReservedAddressOnly) {
  const std::string text = aboutText("x.ini", " ");
  EXPECT_THAT(text, HasSubstr("<a>www.lunaria.example</a>"));
  EXPECT_EQ(text.find("www."), text.rfind("www."));
  EXPECT_EQ(aboutAddress(), "https://www.lunaria.example/");
}

TEST(AboutText, SaysWhatIsRecordedAndHowToSwitchItOff) {
  const std::string text = aboutText("/home/somebody/Lunaria screensaver.ini", " ");
  // The same words as in the README, the man page and the help of the program.
  EXPECT_THAT(text, HasSubstr("full run of more than 23 seconds adds one line (times, version, build) to "));
  EXPECT_THAT(text, HasSubstr("nothing leaves the machine. The setting sisableTelemetry=yes stops that."));
  EXPECT_THAT(text, testing::EndsWith("\n/home/somebody/Lunaria screensaver.ini"));
}

TEST(AboutText, IsTheSameInShortLines) {
  std::string broken = aboutText("x.ini", "\n");
  std::istringstream lines(broken);
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(line.size(), 52U) << line;
  }
  std::string whole = aboutText("x.ini", " ");
  std::ranges::replace(broken, '\n', ' ');
  std::ranges::replace(whole, '\n', ' ');
  EXPECT_EQ(broken, whole);
}
