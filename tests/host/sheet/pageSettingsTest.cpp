// Tests every row of the mapping between controls and settings.
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/sheet/controlIds.h"
#include "host/sheet/pageSettings.h"
#include "support/settingsGroups.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class PageSettings : public PrivateFolders {
 protected:
  struct Row {
    int control;
    int value;
  };

  // Each control writes its value and each value shows its control.
  static void expectRows(int page, const std::string& key, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      writePageSettings(page, {row.control}, xplUserSettings());
      EXPECT_EQ(xplUserSettings().get(key), std::to_string(row.value)) << key << " " << row.control;
      EXPECT_EQ(shownFor(page, key, std::to_string(row.value)), row.control) << key << " " << row.value;
    }
  }
  // The radio button that a stored text shows.
  static int shownFor(int page, const std::string& key, const std::string& text) {
    xplUserSettings().set(key, text);
    const auto checked = checkedControlsFor(page, xplUserSettings());
    return checked.empty() ? 0 : checked.front();
  }
  static void expectFallback(int page, const std::string& key, int control,
                             const std::vector<std::string>& texts) {
    for (const auto& text : texts) {
      EXPECT_EQ(shownFor(page, key, text), control) << key << "=" << text;
    }
  }
};

TEST_F(PageSettings, MoonSizesMapBothWays) {
  expectRows(moonPage, "moonSize", {{1003, 100}, {1004, 200}, {1005, 300}});
}

TEST_F(PageSettings, AnotherMoonSizeShowsMediumAndBecomes200) {
  expectFallback(moonPage, "moonSize", 1004, {"250", "0", "-100", "101", "2147483647"});
  writePageSettings(moonPage, checkedControlsFor(moonPage, xplUserSettings()), xplUserSettings());
  EXPECT_EQ(xplUserSettings().get("moonSize"), "200");
}

TEST_F(PageSettings, AMoonSizeThatIsNoNumberShowsTheDefaultLarge) {
  expectFallback(moonPage, "moonSize", 1005, {"abc", "", "200x"});
}

TEST_F(PageSettings, BackgroundsMapBothWays) {
  expectRows(backgroundPage, "background", {{1013, 0}, {1014, 1}, {1012, 2}, {1011, 3}});
}

TEST_F(PageSettings, AnotherBackgroundShowsTheStarrySky) {
  expectFallback(backgroundPage, "background", 1011, {"4", "-1", "99", "blue"});
}

TEST_F(PageSettings, SoundsMapBothWays) {
  expectRows(soundsPage, "snd_selectedSound",
             {{1035, 0}, {1034, 1}, {1036, 2}, {1032, 3}, {1033, 4}, {1037, 5}, {1038, 6}});
}

TEST_F(PageSettings, AnotherSoundShowsSilence) {
  expectFallback(soundsPage, "snd_selectedSound", 1035, {"7", "-1", "100", ""});
}

TEST_F(PageSettings, TheCookooMapsBothWays) {
  writePageSettings(soundsPage, {1035}, xplUserSettings());
  EXPECT_EQ(xplUserSettings().get("snd_cookooEveryHour"), "no");
  EXPECT_THAT(checkedControlsFor(soundsPage, xplUserSettings()), ElementsAre(1035));
  writePageSettings(soundsPage, {1035, 1039}, xplUserSettings());
  EXPECT_EQ(xplUserSettings().get("snd_cookooEveryHour"), "yes");
  EXPECT_THAT(checkedControlsFor(soundsPage, xplUserSettings()), ElementsAre(1035, 1039));
}

TEST_F(PageSettings, EachCategoryOfQuotesMapsToItsKey) {
  const std::vector<std::pair<int, std::string>> rows = {
      {1026, "showQuotes_Love"},  {1027, "showQuotes_Wisdom"}, {1028, "showQuotes_Advice"},
      {1029, "showQuotes_Peace"}, {1030, "showQuotes_Funny"},  {1031, "showQuotes_WomenVSMen"}};
  for (const auto& [control, key] : rows) {
    writePageSettings(quotesPage, {control}, xplUserSettings());
    for (const auto& other : rows) {
      EXPECT_EQ(xplUserSettings().get(other.second), other.first == control ? "yes" : "no") << key;
    }
    EXPECT_THAT(checkedControlsFor(quotesPage, xplUserSettings()), ElementsAre(control));
  }
}

TEST_F(PageSettings, AllCategoriesCanBeOn) {
  writePageSettings(quotesPage, {1026, 1027, 1028, 1029, 1030, 1031}, xplUserSettings());
  EXPECT_THAT(checkedControlsFor(quotesPage, xplUserSettings()),
              UnorderedElementsAre(1026, 1027, 1028, 1029, 1030, 1031));
}

TEST_F(PageSettings, PowerModesMapBothWays) {
  expectRows(powerPage, "preventComputerSleep", {{1008, 0}, {1009, 1}, {1010, 2}, {1006, 3}});
}

TEST_F(PageSettings, AnotherPowerModeShowsRunNormally) {
  expectFallback(powerPage, "preventComputerSleep", 1008, {"4", "-1", "17"});
}

TEST_F(PageSettings, TimedModesSetTheEndFromNow) {
  writePageSettings(powerPage, {1009}, xplUserSettings());
  EXPECT_EQ(xplUserSettings().get("preventComputerSleepUntilUTCtime_inMinutes"),
            std::to_string(1463865300 / 60 + 120));
  writePageSettings(powerPage, {1010}, xplUserSettings());
  EXPECT_EQ(xplUserSettings().get("preventComputerSleepUntilUTCtime_inMinutes"),
            std::to_string(1463865300 / 60 + 480));
}

TEST_F(PageSettings, TheOtherModesLeaveTheEndAsItIs) {
  for (const int control : {1008, 1006}) {
    writePageSettings(powerPage, {control}, xplUserSettings());
    EXPECT_FALSE(xplUserSettings().get("preventComputerSleepUntilUTCtime_inMinutes").has_value()) << control;
  }
}

TEST_F(PageSettings, StartupEffectsMapBothWays) {
  expectRows(startupPage, "startupEffect", {{1006, 1}, {1007, 0}});
}

TEST_F(PageSettings, AnotherStartupEffectShowsNone) {
  expectFallback(startupPage, "startupEffect", 1007, {"0", "2", "-1"});
}

TEST_F(PageSettings, FreshInstallationShowsTheDefaults) {
  EXPECT_THAT(checkedControlsFor(moonPage, xplUserSettings()), ElementsAre(1005));
  EXPECT_THAT(checkedControlsFor(backgroundPage, xplUserSettings()), ElementsAre(1011));
  EXPECT_THAT(checkedControlsFor(soundsPage, xplUserSettings()), ElementsAre(1035, 1039));
  EXPECT_THAT(checkedControlsFor(quotesPage, xplUserSettings()), IsEmpty());
  EXPECT_THAT(checkedControlsFor(powerPage, xplUserSettings()), ElementsAre(1008));
  EXPECT_THAT(checkedControlsFor(startupPage, xplUserSettings()), ElementsAre(1007));
}

TEST_F(PageSettings, PagesWithoutSuchControlsHaveNoneAndWriteNothing) {
  for (const int page : {+messagesPage, +aboutPage, 8, -1}) {
    EXPECT_THAT(checkedControlsFor(page, xplUserSettings()), IsEmpty()) << page;
    writePageSettings(page, {1003, 1026}, xplUserSettings());
  }
  EXPECT_EQ(readFile(xplUserSettings().filename()), "");
}

TEST_F(PageSettings, TheSameIdMeansAnotherThingOnAnotherPage) {
  writePageSettings(powerPage, {1006}, xplUserSettings());
  EXPECT_FALSE(xplUserSettings().get("startupEffect").has_value());
  writePageSettings(startupPage, {1007}, xplUserSettings());
  EXPECT_EQ(xplUserSettings().get("preventComputerSleep"), "3");
}

TEST_F(PageSettings, WithoutARadioButtonTheDefaultIsWritten) {
  writePageSettings(moonPage, {}, xplUserSettings());
  EXPECT_EQ(xplUserSettings().get("moonSize"), "200");
}

TEST_F(PageSettings, WhatHasNoControlIsLeftAlone) {
  cAppSettings().showQuotes_UserQuotes.write(true);
  cSoundSettings().snd_loopSound.write(true);
  for (int page = 0; page < pageCount; ++page) {
    writePageSettings(page, checkedControlsFor(page, xplUserSettings()), xplUserSettings());
  }
  EXPECT_TRUE(cAppSettings().showQuotes_UserQuotes.read());
  EXPECT_TRUE(cSoundSettings().snd_loopSound.read());
}

TEST(SoundOfControl, IsTheSettingsValue) {
  EXPECT_EQ(soundOf(1032), 3);
  EXPECT_EQ(soundOf(1038), 6);
  EXPECT_EQ(soundOf(1035), 0);
  EXPECT_EQ(soundOf(1039), 0);
}

}  // namespace
