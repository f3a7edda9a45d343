// Tests the sheet's file: one that cannot be written, and one that others write too.
#include "settingsSheetFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

// A store of its own stands for another process, whose memory does not know of this one's changes.
class TwoSheets : public SettingsSheetModel {
 protected:
  xplSettings firstStore{xplSettings::scopeUser};
  xplSettings secondStore{xplSettings::scopeUser};
  SettingsSheet first{firstStore};
  SettingsSheet second{secondStore};
};

TEST_F(SettingsSheetModel, AFileThatCannotBeWrittenIsToldAndNothingChanges) {
  xplUserSettings();
  blockFile();
  SettingsSheet sheet;
  sheet.open(moonPage);
  sheet.open(messagesPage);
  sheet.messages().storeEdits("not lost", "nor this");
  sheet.collect(moonPage, {controlIds::moonSmall});
  sheet.collect(messagesPage, {});
  EXPECT_FALSE(sheet.commit());
  EXPECT_THAT(sheet.failureText(), HasSubstr(xplUserSettings().filename()));
  EXPECT_FALSE(xplUserSettings().get("moonSize").has_value());
  EXPECT_EQ(sheet.messages().view().message, "not lost");
}

TEST_F(SettingsSheetModel, AfterTheFileWasMendedConfirmingWrites) {
  xplUserSettings();
  blockFile();
  SettingsSheet sheet;
  sheet.open(moonPage);
  sheet.collect(moonPage, {controlIds::moonSmall});
  EXPECT_FALSE(sheet.commit());
  EXPECT_FALSE(sheet.isComplete());
  unblockFile();
  sheet.collect(moonPage, {controlIds::moonMedium});
  EXPECT_TRUE(sheet.commit());
  EXPECT_EQ(inFile("moonSize"), "200");
}

TEST_F(SettingsSheetModel, CancellingAfterAFailureWritesNoPage) {
  xplUserSettings();
  blockFile();
  {
    SettingsSheet sheet;
    sheet.open(moonPage);
    sheet.collect(moonPage, {controlIds::moonSmall});
    EXPECT_FALSE(sheet.commit());
    unblockFile();
    sheet.rememberPage();
  }
  EXPECT_FALSE(inFile("moonSize").has_value());
  EXPECT_EQ(inFile("activeDialogTab"), "0");
}

TEST_F(TwoSheets, KeepEachOthersPages) {
  first.open(moonPage);
  second.open(backgroundPage);
  first.collect(moonPage, {controlIds::moonSmall});
  second.collect(backgroundPage, {controlIds::black});
  EXPECT_TRUE(first.commit());
  EXPECT_TRUE(second.commit());
  first.rememberPage();
  EXPECT_EQ(inFile("moonSize"), "100");
  EXPECT_EQ(inFile("background"), "0");
}

TEST_F(TwoSheets, APageThatIsOpenedLateShowsWhatAnotherSheetSaved) {
  second.open(moonPage);
  first.open(backgroundPage);
  first.open(messagesPage);
  first.messages().storeEdits("theirs", "below");
  first.collect(backgroundPage, {controlIds::black});
  first.collect(messagesPage, {});
  EXPECT_TRUE(first.commit());
  const auto shown = second.open(backgroundPage);
  EXPECT_THAT(shown, ElementsAre(controlIds::black));
  second.open(messagesPage);
  EXPECT_EQ(second.messages().view().message, "theirs");
  second.collect(moonPage, {controlIds::moonSmall});
  second.collect(backgroundPage, shown);
  second.collect(messagesPage, {});
  EXPECT_TRUE(second.commit());
  EXPECT_EQ(inFile("background"), "0");
  EXPECT_EQ(inFile("message1"), "theirs");
  EXPECT_EQ(inFile("moonSize"), "100");
}

TEST_F(SettingsSheetModel, ASaverThatRunsDoesNotUndoWhatTheSheetWrote) {
  xplSettings saversStore(xplSettings::scopeUser);
  SettingsSheet sheet;
  sheet.open(moonPage);
  sheet.collect(moonPage, {controlIds::moonSmall});
  EXPECT_TRUE(sheet.commit());
  saversStore.set("preventComputerSleep", 0);
  EXPECT_EQ(inFile("moonSize"), "100");
  EXPECT_EQ(inFile("preventComputerSleep"), "0");
}

}  // namespace
