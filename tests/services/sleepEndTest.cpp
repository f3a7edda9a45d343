// When sleep is allowed again.
#include <gmock/gmock.h>

#include "services/sleepFixture.h"

using testing::ElementsAre;

namespace {

TEST_F(PreventComputerSleep, KeptItChecksOnEvery1501stFrame) {
  const auto preventer = make(1, 100);
  tick(*preventer, 1500);
  EXPECT_EQ(countEntries(ticks), 0);
  tick(*preventer, 1);
  EXPECT_EQ(countEntries(ticks), 1);
  tick(*preventer, 1500);
  EXPECT_EQ(countEntries(ticks), 1);
  tick(*preventer, 1);
  EXPECT_EQ(countEntries(ticks), 2);
  EXPECT_THAT(record.calls, ElementsAre("request"));
}

TEST_F(PreventComputerSleep, AtTheEndOfTheTimeTheNextCheckRestoresAndSwitchesOff) {
  const auto preventer = make(2, 5);
  clock.advance(std::int64_t{6} * 60 * 1'000'000);
  tick(*preventer, 1500);
  EXPECT_TRUE(preventer->isPreventing());
  EXPECT_EQ(storedMode(), "2");
  tick(*preventer, 1);
  EXPECT_FALSE(preventer->isPreventing());
  EXPECT_EQ(storedMode(), "0");
  EXPECT_THAT(record.calls, ElementsAre("request", "release"));
  EXPECT_THAT(entries(), ElementsAre(looks, asks, ticks, restores, looks, expires));
  tick(*preventer, 4000);
  EXPECT_EQ(countEntries(ticks), 1);
}

TEST_F(PreventComputerSleep, ItsOwnEndRestores) {
  make(1, 100).reset();
  EXPECT_THAT(record.calls, ElementsAre("request", "release"));
  EXPECT_THAT(entries(), ElementsAre(looks, asks, restores, looks));
  EXPECT_EQ(storedMode(), "1");
}

TEST_F(PreventComputerSleep, ItsOwnEndSwitchesAnExpiredOptionOff) {
  auto preventer = make(1, 1);
  clock.advance(std::int64_t{3} * 60 * 1'000'000);
  preventer.reset();
  EXPECT_EQ(storedMode(), "0");
}

// A store of its own stands for the settings sheet in another process.
TEST_F(PreventComputerSleep, ItsEndDoesNotUndoWhatWasChosenMeanwhile) {
  for (const char* chosen : {"0", "3", "7"}) {
    auto preventer = make(1, 1);
    xplSettings(xplSettings::scopeUser).set("preventComputerSleep", chosen);
    clock.advance(std::int64_t{3} * 60 * 1'000'000);
    preventer.reset();
    EXPECT_EQ(modeInFile(), chosen);
  }
  EXPECT_EQ(countEntries(expires), 0);
}

TEST_F(PreventComputerSleep, ItsEndDoesNotUndoATimeThatWasChosenMeanwhile) {
  auto preventer = make(1, 1);
  xplSettings sheetsStore(xplSettings::scopeUser);
  sheetsStore.set("preventComputerSleep", 2);
  sheetsStore.set("preventComputerSleepUntilUTCtime_inMinutes", thisMinute() + 480);
  clock.advance(std::int64_t{3} * 60 * 1'000'000);
  preventer.reset();
  EXPECT_EQ(modeInFile(), "2");
  EXPECT_THAT(entries(), ElementsAre(looks, asks, restores, looks));
}

TEST_F(PreventComputerSleep, TheCheckDoesNotUndoWhatWasChosenMeanwhile) {
  const auto preventer = make(2, 5);
  xplSettings(xplSettings::scopeUser).set("preventComputerSleep", 3);
  clock.advance(std::int64_t{6} * 60 * 1'000'000);
  tick(*preventer, 1501);
  EXPECT_FALSE(preventer->isPreventing());
  EXPECT_EQ(modeInFile(), "3");
  EXPECT_THAT(entries(), ElementsAre(looks, asks, ticks, restores, looks));
}

TEST_F(PreventComputerSleep, AtItsStartItTakesOverWhatWasChosenSinceTheStoreWasRead) {
  xplUserSettings().set("preventComputerSleep", 1);
  xplSettings(xplSettings::scopeUser).set("preventComputerSleep", 3);
  const cPreventComputerSleep preventer(std::make_unique<RecordingKeepAwake>(record));
  EXPECT_TRUE(preventer.isPreventing());
  EXPECT_EQ(modeInFile(), "3");
}

TEST_F(PreventComputerSleep, ATimedOptionThatWasChosenMeanwhileAndIsOverIsSwitchedOff) {
  auto preventer = make(1, 1);
  xplSettings(xplSettings::scopeUser).set("preventComputerSleep", 2);
  clock.advance(std::int64_t{3} * 60 * 1'000'000);
  preventer.reset();
  EXPECT_EQ(modeInFile(), "0");
  EXPECT_THAT(entries(), ElementsAre(looks, asks, restores, looks, expires));
}

TEST_F(PreventComputerSleep, RestoringTwiceIsRestoringOnce) {
  const auto preventer = make(3);
  preventer->restoreIdleSleep();
  preventer->restoreIdleSleep();
  EXPECT_THAT(record.calls, ElementsAre("request", "release"));
}

}  // namespace
