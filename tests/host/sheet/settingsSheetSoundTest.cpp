// Tests what is heard of the sheet.
#include "settingsSheetFixture.h"

using testing::ElementsAre;

namespace {

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
