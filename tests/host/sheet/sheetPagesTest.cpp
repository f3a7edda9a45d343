// Tests the table of pages and controls.
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "host/sheet/sheetPages.h"

using testing::ElementsAre;

namespace {

std::vector<std::string> textsOf(int page) {
  std::vector<std::string> texts;
  for (const auto& control : sheetPages()[static_cast<std::size_t>(page)].controls) {
    texts.push_back(std::to_string(control.id) + " " + control.text);
  }
  return texts;
}

TEST(SheetPages, AreEightInTheirOrderWithTheirTemplates) {
  std::vector<std::string> titles;
  for (const auto& page : sheetPages()) {
    titles.push_back(std::to_string(page.dialogTemplate) + " " + page.title);
  }
  EXPECT_THAT(titles, ElementsAre("106 Moon", "2008 Messages", "2007 Background", "2010 Sounds",
                                  "2009 Quotes", "2006 Power", "2005 Startup", "2004 About"));
}

TEST(SheetPages, HaveTheirSizes) {
  std::vector<std::string> sizes;
  for (const auto& page : sheetPages()) {
    sizes.push_back(std::to_string(page.width) + "x" + std::to_string(page.height));
  }
  EXPECT_THAT(sizes, ElementsAre("231x87", "237x150", "219x117", "219x117", "219x117", "225x154", "213x93",
                                 "231x122"));
}

TEST(SheetPages, RecordTheirPosition) {
  for (const int page :
       {moonPage, messagesPage, backgroundPage, soundsPage, quotesPage, powerPage, aboutPage}) {
    EXPECT_EQ(sheetPages()[static_cast<std::size_t>(page)].recordedIndex, page);
  }
}

TEST(SheetPages, KeptStartupRecordsTheIndexOfAbout) {
  EXPECT_EQ(sheetPages()[powerPage].recordedIndex, 5);
  EXPECT_EQ(sheetPages()[startupPage].recordedIndex, 7);
  EXPECT_EQ(sheetPages()[aboutPage].recordedIndex, 7);
}

TEST(SheetPages, KeptCaptionIsMisspelledAndEndsWithABlank) {
  EXPECT_EQ(sheetCaption(), "Lunara 5.4.1 ");
}

TEST(SheetPages, MoonHasItsControls) {
  EXPECT_THAT(textsOf(moonPage), ElementsAre("-1 Moon size", "1003 Small", "1004 Medium", "1005 Large"));
}

TEST(SheetPages, MessagesHasItsControls) {
  EXPECT_THAT(textsOf(messagesPage),
              ElementsAre("1020 Message 1 of 1", "-1 Message:\n(Press CTRL + ENTER for a new line)", "1014 ",
                          "-1 Bottom line:", "1015 ", "1016 New", "1019 < Previous", "1018 Next >",
                          "1017 Delete", "1021 "));
}

TEST(SheetPages, BackgroundHasItsControls) {
  EXPECT_THAT(textsOf(backgroundPage),
              ElementsAre("-1 Sky background", "1013 Black color", "1014 Dark blue color",
                          "1012 Gradient blue color", "1011 Starry sky background"));
}

TEST(SheetPages, SoundsHasItsControls) {
  EXPECT_THAT(
      textsOf(soundsPage),
      ElementsAre("-1 Play the following sound", "1032 Lullaby", "1033 Ocean waves",
                  "1034 Sleeping with the one I love", "1035 The sound of silence", "1036 Sleep reminder",
                  "1037 Birds", "1038 Feeling blue", "1039 Cookoo every hour (Rooster in the mornings)"));
}

TEST(SheetPages, KeptCookooIsMisspelled) {
  EXPECT_STREQ(sheetPages()[soundsPage].controls.back().text, "Cookoo every hour (Rooster in the mornings)");
}

TEST(SheetPages, QuotesHasItsControls) {
  EXPECT_THAT(textsOf(quotesPage),
              ElementsAre("-1 Show quotes of the following categories", "1026 Love", "1027 Wisdom",
                          "1028 Advice", "1029 Peace", "1030 Funny", "1031 Women VS Men"));
}

TEST(SheetPages, PowerHasItsControls) {
  EXPECT_THAT(
      textsOf(powerPage),
      ElementsAre("-1 When doing a lengthy operation, like a big file download, the computer might go "
                  "to idle state and interrupt your operation.\nLunaria can keep the computer awake.",
                  "-1 Prevent the computer from entering idle mode",
                  "1008 Run normally (no power mode changes)", "1009 Keep awake for the next 2 hours",
                  "1010 Keep awake for the next 8 hours", "1006 Keep awake permanently",
                  "-1 If on laptop, do not close the lid to avoid overheating."));
}

TEST(SheetPages, StartupHasItsControls) {
  EXPECT_THAT(textsOf(startupPage),
              ElementsAre("-1 Startup effect", "1007 None", "1006 Switching off old TV"));
}

TEST(SheetPages, AboutHasOneLink) {
  EXPECT_THAT(textsOf(aboutPage), ElementsAre("1025 "));
  EXPECT_EQ(sheetPages()[aboutPage].controls[0].kind, ControlKind::link);
}

TEST(SheetPages, NoPageHasAnIdTwice) {
  for (const auto& page : sheetPages()) {
    std::set<int> ids;
    for (const auto& control : page.controls) {
      EXPECT_TRUE(control.id == controlIds::none || ids.insert(control.id).second)
          << page.title << control.id;
    }
  }
}

}  // namespace
