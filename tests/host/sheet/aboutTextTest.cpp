// Tests the text of the About page.
#include <gmock/gmock.h>

#include "host/sheet/aboutText.h"

using testing::HasSubstr;

TEST(AboutText, NamesTheProgramAndItsVersion) {
  EXPECT_THAT(aboutText("x.ini"), testing::StartsWith("Lunaria screensaver 5.4.1\n"));
}

TEST(AboutText, LinksToAReservedAddressOnly) {
  const std::string text = aboutText("x.ini");
  EXPECT_THAT(text, HasSubstr("<a href=\"https://www.lunaria.example/\">www.lunaria.example</a>"));
  EXPECT_EQ(text.find("http"), text.rfind("http"));
  EXPECT_EQ(aboutAddress(), "https://www.lunaria.example/");
}

TEST(AboutText, SaysWhatIsRecordedAndHowToSwitchItOff) {
  const std::string text = aboutText("/home/somebody/Lunaria screensaver.ini");
  EXPECT_THAT(text, HasSubstr("one line is added to a file on this computer"));
  EXPECT_THAT(text, HasSubstr("Nothing leaves the computer"));
  EXPECT_THAT(text, HasSubstr("sisableTelemetry=yes"));
  EXPECT_THAT(text, HasSubstr("/home/somebody/Lunaria screensaver.ini"));
}
