// Tests the sheet: the page that it remembers, and what confirming and cancelling write.
#include "settingsSheetFixture.h"

using testing::ElementsAre;

namespace {

TEST_F(SettingsSheetModel, OpensOnTheRememberedPage) {
  for (int page = 0; page < pageCount; ++page) {
    cAppSettings().activeDialogTab.write(page);
    EXPECT_EQ(SettingsSheet().startPage(), page);
  }
}

TEST_F(SettingsSheetModel, APageBeyondTheLastOpensAbout) {
  cAppSettings().activeDialogTab.write(12);
  EXPECT_EQ(SettingsSheet().startPage(), aboutPage);
  cAppSettings().activeDialogTab.write(8);
  EXPECT_EQ(SettingsSheet().startPage(), aboutPage);
}

TEST_F(SettingsSheetModel, ANegativePageOpensMoon) {
  cAppSettings().activeDialogTab.write(-3);
  EXPECT_EQ(SettingsSheet().startPage(), moonPage);
}

TEST_F(SettingsSheetModel, RemembersThePageThatWasSwitchedLast) {
  SettingsSheet sheet;
  SettingsSheet::pageSwitched(moonPage);
  SettingsSheet::pageSwitched(quotesPage);
  sheet.rememberPage();
  EXPECT_EQ(inFile("activeDialogTab"), "4");
  EXPECT_EQ(sheet.startPage(), quotesPage);
}

TEST_F(SettingsSheetModel, KeptSheetLeftOnStartupReopensOnAbout) {
  SettingsSheet sheet;
  SettingsSheet::pageSwitched(powerPage);
  EXPECT_EQ(lastActivePage, 5);
  SettingsSheet::pageSwitched(startupPage);
  EXPECT_EQ(lastActivePage, 7);
  sheet.rememberPage();
  EXPECT_EQ(SettingsSheet().startPage(), aboutPage);
}

TEST_F(SettingsSheetModel, TheLastActivePageOutlivesTheSheet) {
  { SettingsSheet::pageSwitched(soundsPage); }
  SettingsSheet().rememberPage();
  EXPECT_EQ(inFile("activeDialogTab"), "3");
}

TEST_F(SettingsSheetModel, ALastActivePageOutOfRangeIsClamped) {
  lastActivePage = 9;
  SettingsSheet().rememberPage();
  EXPECT_EQ(inFile("activeDialogTab"), "7");
  lastActivePage = -1;
  SettingsSheet().rememberPage();
  EXPECT_EQ(inFile("activeDialogTab"), "0");
}

TEST_F(SettingsSheetModel, OpeningShowsTheSettings) {
  SettingsSheet sheet;
  EXPECT_THAT(sheet.open(moonPage), ElementsAre(controlIds::moonLarge));
  EXPECT_TRUE(sheet.isOpen(moonPage));
  EXPECT_FALSE(sheet.isOpen(powerPage));
}

TEST_F(SettingsSheetModel, CancellingWritesNothingButThePage) {
  {
    SettingsSheet sheet;
    sheet.open(moonPage);
    SettingsSheet::pageSwitched(moonPage);
    sheet.open(backgroundPage);
    SettingsSheet::pageSwitched(backgroundPage);
    sheet.rememberPage();
  }
  EXPECT_EQ(settingsText(), std::string("activeDialogTab=2") + xplFileSystemMini::lineEnd());
}

TEST_F(SettingsSheetModel, ConfirmingWritesTheOpenedPagesAlone) {
  SettingsSheet sheet;
  sheet.open(moonPage);
  EXPECT_FALSE(sheet.isComplete());
  sheet.collect(moonPage, {controlIds::moonSmall});
  EXPECT_TRUE(sheet.isComplete());
  EXPECT_TRUE(sheet.commit());
  EXPECT_EQ(settingsText(), std::string("moonSize=100") + xplFileSystemMini::lineEnd());
}

TEST_F(SettingsSheetModel, ConfirmingWritesTheMessages) {
  SettingsSheet sheet;
  sheet.open(messagesPage);
  sheet.messages().storeEdits("mine", "below");
  sheet.collect(messagesPage, {});
  EXPECT_TRUE(sheet.commit());
  EXPECT_EQ(inFile("message1"), "mine");
  EXPECT_EQ(inFile("bottomline1"), "below");
  EXPECT_EQ(inFile("messagesCount"), "2");
}

TEST_F(SettingsSheetModel, MessagesThatWereNotOpenedAreNotWritten) {
  SettingsSheet sheet;
  sheet.open(moonPage);
  sheet.collect(moonPage, {controlIds::moonSmall});
  EXPECT_TRUE(sheet.commit());
  EXPECT_FALSE(inFile("messagesCount").has_value());
}

}  // namespace
