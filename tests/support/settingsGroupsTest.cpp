// Tests the groups: their keys, defaults and the small questions that they answer.
#include "harness/privateFolders.h"
#include "support/settingsGroups.h"

using SettingsGroups = PrivateFolders;

namespace {

// Writes through the setting and expects the text under the key.
template <class T>
void expectKey(xplSetting<T>& setting, const std::string& key, const T& value, const std::string& text) {
  setting.write(value);
  EXPECT_EQ(xplUserSettings().get(key), text) << key;
  EXPECT_EQ(setting.read(), value) << key;
}

}  // namespace

TEST_F(SettingsGroups, FreshInstallationHasTheDefaultsOfTheMoon) {
  const cMoonSettings moon;
  EXPECT_EQ(moon.moonSize.read(), 300);
  EXPECT_TRUE(moon.showMoon.read());
  EXPECT_FALSE(moon.fromSouthHemisphere.read());
  EXPECT_TRUE(moon.showMoonPhasePercentAndDegrees.read());
  EXPECT_TRUE(moon.showMoonPhaseName.read());
  EXPECT_TRUE(moon.showNotableDates.read());
}

TEST_F(SettingsGroups, FreshInstallationHasTheDefaultsOfTheApplication) {
  const cAppSettings app;
  EXPECT_EQ(app.preventComputerSleepUntilUTCtime_inMinutes.read(), 0);
  EXPECT_FALSE(app.sisableTelemetry.read());
  EXPECT_EQ(app.activeDialogTab.read(), 0);
  EXPECT_EQ(app.startupEffect.read(), 0);
  EXPECT_EQ(app.background.read(), 3);
  EXPECT_EQ(app.preventComputerSleep.read(), 0);
  for (const auto* quotes :
       {&app.showQuotes_Love, &app.showQuotes_Wisdom, &app.showQuotes_Advice, &app.showQuotes_Funny,
        &app.showQuotes_WomenVSMen, &app.showQuotes_Peace, &app.showQuotes_UserQuotes}) {
    EXPECT_FALSE(quotes->read()) << quotes->key();
  }
}

TEST_F(SettingsGroups, FreshInstallationHasTheDefaultsOfTheSounds) {
  const cSoundSettings sound;
  EXPECT_EQ(sound.snd_selectedSound.read(), 0);
  EXPECT_FALSE(sound.snd_loopSound.read());
  EXPECT_TRUE(sound.snd_cookooEveryHour.read());
}

TEST_F(SettingsGroups, ReadingDefaultsWritesNothing) {
  const cMoonSettings moon;
  const cAppSettings app;
  const cSoundSettings sound;
  EXPECT_EQ(moon.moonSize.read() + app.background.read() + sound.snd_selectedSound.read(), 303);
  EXPECT_EQ(readFile(xplUserSettings().filename()), "");
}

TEST_F(SettingsGroups, MoonIsKeptUnderItsKeys) {
  cMoonSettings moon;
  expectKey(moon.moonSize, "moonSize", 100, "100");
  expectKey(moon.showMoon, "showMoon", false, "no");
  expectKey(moon.fromSouthHemisphere, "fromSouthHemisphere", true, "yes");
  expectKey(moon.showMoonPhasePercentAndDegrees, "showMoonPhasePercentAndDegrees", false, "no");
  expectKey(moon.showMoonPhaseName, "showMoonPhaseName", false, "no");
  expectKey(moon.showNotableDates, "showNotableDates", false, "no");
}

TEST_F(SettingsGroups, ApplicationIsKeptUnderItsKeys) {
  cAppSettings app;
  expectKey(app.preventComputerSleepUntilUTCtime_inMinutes, "preventComputerSleepUntilUTCtime_inMinutes",
            std::int64_t{24397755}, "24397755");
  expectKey(app.activeDialogTab, "activeDialogTab", 4, "4");
  expectKey(app.startupEffect, "startupEffect", 1, "1");
  expectKey(app.background, "background", 2, "2");
  expectKey(app.preventComputerSleep, "preventComputerSleep", 3, "3");
  expectKey(app.showQuotes_Love, "showQuotes_Love", true, "yes");
  expectKey(app.showQuotes_Wisdom, "showQuotes_Wisdom", true, "yes");
  expectKey(app.showQuotes_Advice, "showQuotes_Advice", true, "yes");
  expectKey(app.showQuotes_Funny, "showQuotes_Funny", true, "yes");
  expectKey(app.showQuotes_WomenVSMen, "showQuotes_WomenVSMen", true, "yes");
  expectKey(app.showQuotes_Peace, "showQuotes_Peace", true, "yes");
  expectKey(app.showQuotes_UserQuotes, "showQuotes_UserQuotes", true, "yes");
}

TEST_F(SettingsGroups, SoundsAreKeptUnderTheirKeys) {
  cSoundSettings sound;
  expectKey(sound.snd_selectedSound, "snd_selectedSound", 6, "6");
  expectKey(sound.snd_loopSound, "snd_loopSound", true, "yes");
}

TEST_F(SettingsGroups, KeptSpellingOfSisableTelemetry) {
  cAppSettings app;
  expectKey(app.sisableTelemetry, "sisableTelemetry", true, "yes");
  EXPECT_FALSE(xplUserSettings().get("disableTelemetry").has_value());
  xplUserSettings().set("sisableTelemetry", "no");
  xplUserSettings().set("disableTelemetry", "yes");
  EXPECT_FALSE(app.sisableTelemetry.read());
}

TEST_F(SettingsGroups, KeptSpellingOfCookooEveryHour) {
  cSoundSettings sound;
  expectKey(sound.snd_cookooEveryHour, "snd_cookooEveryHour", false, "no");
  xplUserSettings().set("snd_cuckooEveryHour", "yes");
  EXPECT_FALSE(sound.snd_cookooEveryHour.read());
}

TEST_F(SettingsGroups, ValueOfOneObjectIsSeenByTheNext) {
  cMoonSettings written;
  const cMoonSettings alreadyThere;
  written.moonSize.write(200);
  EXPECT_EQ(alreadyThere.moonSize.read(), 200);
  xplCloseSettings();
  EXPECT_EQ(cMoonSettings().moonSize.read(), 200);
}

TEST_F(SettingsGroups, EachCategoryOfQuotesCountsAlone) {
  EXPECT_FALSE(cAppSettings().anyQuoteCategoryOn(5));
  for (const char* key : {"showQuotes_Love", "showQuotes_Wisdom", "showQuotes_Advice", "showQuotes_Funny",
                          "showQuotes_WomenVSMen", "showQuotes_Peace"}) {
    xplUserSettings().set(key, true);
    EXPECT_TRUE(cAppSettings().anyQuoteCategoryOn(0)) << key;
    xplUserSettings().set(key, false);
    EXPECT_FALSE(cAppSettings().anyQuoteCategoryOn(5)) << key;
  }
}

TEST_F(SettingsGroups, UsersQuotesCountOnlyWhenThereAreSome) {
  cAppSettings app;
  app.showQuotes_UserQuotes.write(true);
  EXPECT_FALSE(app.anyQuoteCategoryOn(0));
  EXPECT_TRUE(app.anyQuoteCategoryOn(1));
}

TEST_F(SettingsGroups, SleepIsPreventedForHoursFromTheWholeMinute) {
  cAppSettings app;
  clock.set({1463865359, 999999});  // a microsecond before the next minute
  app.preventSleepForHours(2);
  EXPECT_EQ(app.preventComputerSleepUntilUTCtime_inMinutes.read(), 1463865300 / 60 + 120);
  clock.advance(1);
  app.preventSleepForHours(8);
  EXPECT_EQ(app.preventComputerSleepUntilUTCtime_inMinutes.read(), 1463865360 / 60 + 480);
  app.preventSleepForHours(0);
  EXPECT_EQ(app.preventComputerSleepUntilUTCtime_inMinutes.read(), 1463865360 / 60);
  app.preventSleepForHours(2147483647);
  EXPECT_EQ(app.preventComputerSleepUntilUTCtime_inMinutes.read(),
            1463865360 / 60 + std::int64_t{2147483647} * 60);
}
