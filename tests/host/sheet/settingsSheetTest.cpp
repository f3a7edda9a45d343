// Tests the sheet: the page that it remembers, what confirming and cancelling write, and what goes wrong.
#include <filesystem>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/sheet/settingsSheet.h"
#include "support/fileSystem.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class SettingsSheetModel : public PrivateFolders {
 protected:
  SettingsSheetModel() { lastActivePage = 0; }
  static std::string settingsText() { return readFile(xplUserSettings().filename()); }
  static std::optional<std::string> inFile(const std::string& key) {
    return xplSettings(xplSettings::scopeUser).get(key);
  }
  // Puts a folder where the settings file would be: it can then not be written.
  static void blockFile() {
    std::filesystem::remove(xplUserSettings().filename());
    std::filesystem::create_directories(xplUserSettings().filename() + "/in the way");
  }
  static void unblockFile() { std::filesystem::remove_all(xplUserSettings().filename()); }

  std::vector<std::string> heard;
  SoundPreview preview{[this](int sound) { heard.push_back(std::to_string(sound)); },
                       [this] { heard.emplace_back("cuckoo"); }, [this] { heard.emplace_back("stop"); }};
};

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

// A store of its own stands for another process, whose memory does not know of this one's changes.
TEST_F(SettingsSheetModel, TwoSheetsKeepEachOthersPages) {
  xplSettings firstStore(xplSettings::scopeUser);
  xplSettings secondStore(xplSettings::scopeUser);
  SettingsSheet first(firstStore);
  SettingsSheet second(secondStore);
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

TEST_F(SettingsSheetModel, APageThatIsOpenedLateShowsWhatAnotherSheetSaved) {
  xplSettings firstStore(xplSettings::scopeUser);
  xplSettings secondStore(xplSettings::scopeUser);
  SettingsSheet first(firstStore);
  SettingsSheet second(secondStore);
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

TEST_F(SettingsSheetModel, TheSoundsPagePlaysWhatIsChosen) {
  const SettingsSheet sheet(xplUserSettings(), preview);
  for (const int control :
       {controlIds::lullaby, controlIds::oceanWaves, controlIds::sleepingWithTheOneILove, controlIds::silence,
        controlIds::sleepReminder, controlIds::birds, controlIds::feelingBlue, controlIds::cookooEveryHour}) {
    sheet.clicked(soundsPage, control);
  }
  EXPECT_THAT(heard, ElementsAre("3", "4", "1", "stop", "2", "5", "6", "cuckoo"));
}

TEST_F(SettingsSheetModel, OtherPagesAreSilent) {
  const SettingsSheet sheet(xplUserSettings(), preview);
  for (int page = 0; page < pageCount; ++page) {
    if (page != soundsPage) {
      sheet.clicked(page, controlIds::lullaby);
      sheet.clicked(page, controlIds::cookooEveryHour);
    }
  }
  EXPECT_TRUE(heard.empty());
}

TEST_F(SettingsSheetModel, OpeningTheSoundsPageIsSilent) {
  cSoundSettings().snd_selectedSound.write(3);
  SettingsSheet sheet(xplUserSettings(), preview);
  sheet.open(soundsPage);
  EXPECT_TRUE(heard.empty());
}

TEST_F(SettingsSheetModel, TheEndOfTheSheetEndsTheSound) {
  {
    const SettingsSheet sheet(xplUserSettings(), preview);
    sheet.clicked(soundsPage, controlIds::birds);
  }
  EXPECT_THAT(heard, ElementsAre("5", "stop"));
}

TEST_F(SettingsSheetModel, WithoutAPlayerItIsSilent) {
  const SettingsSheet sheet;
  sheet.clicked(soundsPage, controlIds::birds);
  sheet.clicked(soundsPage, controlIds::cookooEveryHour);
  sheet.clicked(soundsPage, controlIds::silence);
  EXPECT_EQ(settingsText(), "");
}

}  // namespace
