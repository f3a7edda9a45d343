// When sleep is prevented.
#include <gmock/gmock.h>

#include "services/sleepFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST_F(PreventComputerSleep, OffMakesNoRequest) {
  const auto preventer = make(0, 100);
  EXPECT_FALSE(preventer->isActive());
  EXPECT_FALSE(preventer->isPreventing());
  EXPECT_THAT(record.calls, IsEmpty());
  EXPECT_THAT(entries(), ElementsAre(looks));
}

TEST_F(PreventComputerSleep, AFreshInstallationDoesNotPrevent) {
  const cPreventComputerSleep preventer(std::make_unique<RecordingKeepAwake>(record));
  EXPECT_FALSE(preventer.isActive());
  EXPECT_THAT(record.calls, IsEmpty());
}

TEST_F(PreventComputerSleep, BothTimedModesPreventUntilTheirEnd) {
  for (const int mode : {1, 2}) {
    auto preventer = make(mode, 120);
    EXPECT_TRUE(preventer->isActive());
    EXPECT_TRUE(preventer->isPreventing());
    EXPECT_THAT(record.calls, ElementsAre("request"));
    preventer.reset();
    record.calls.clear();
  }
}

TEST_F(PreventComputerSleep, LogsTheRequest) {
  const auto preventer = make(1, 120);
  EXPECT_THAT(entries(), ElementsAre(looks, asks));
}

TEST_F(PreventComputerSleep, TheMinuteOfTheEndStillCounts) {
  clock.set({thisMinute() * 60, 0});
  const auto preventer = make(1, 0);
  EXPECT_TRUE(preventer->isActive());
  clock.advance(59'999'999);
  EXPECT_TRUE(preventer->isActive());
  clock.advance(1);
  EXPECT_FALSE(preventer->isActive());
}

TEST_F(PreventComputerSleep, AnEndThatIsPastSwitchesTheOptionOff) {
  const auto preventer = make(1, -1);
  EXPECT_FALSE(preventer->isActive());
  EXPECT_EQ(storedMode(), "0");
  EXPECT_THAT(record.calls, IsEmpty());
  EXPECT_THAT(entries(), ElementsAre(looks, expires));
}

TEST_F(PreventComputerSleep, AlwaysIgnoresTheEndAndKeepsTheSetting) {
  {
    const auto preventer = make(3, -1000);
    EXPECT_TRUE(preventer->isPreventing());
    clock.advance(std::int64_t{1} << 50);
    tick(*preventer, 4000);
    EXPECT_TRUE(preventer->isPreventing());
    EXPECT_EQ(countEntries(ticks), 0);
  }
  EXPECT_THAT(record.calls, ElementsAre("request", "release"));
  EXPECT_EQ(storedMode(), "3");
}

TEST_F(PreventComputerSleep, AnyOtherModeIsOffAndIsLeftAlone) {
  for (const int mode : {7, 4, -1, -2147483647}) {
    { EXPECT_FALSE(make(mode, -5)->isActive()); }
    EXPECT_EQ(storedMode(), std::to_string(mode));
  }
  EXPECT_THAT(record.calls, IsEmpty());
}

TEST_F(PreventComputerSleep, ARefusalIsLoggedAndNotTriedAgain) {
  record.agrees = false;
  {
    const auto preventer = make(3);
    EXPECT_FALSE(preventer->isPreventing());
    tick(*preventer, 4000);
  }
  EXPECT_THAT(record.calls, ElementsAre("request"));
  EXPECT_THAT(entries(), ElementsAre(looks, asks, fails));
  EXPECT_EQ(countEntries(fails, "Warning"), 1);
}

TEST_F(PreventComputerSleep, WithoutAPlatformARequestFails) {
  xplUserSettings().set("preventComputerSleep", 3);
  cPreventComputerSleep preventer(nullptr);
  preventer.tick();
  EXPECT_FALSE(preventer.isPreventing());
  EXPECT_EQ(countEntries(fails), 1);
}

TEST_F(PreventComputerSleep, ARefusalThatComesLateEndsThePrevention) {
  const auto preventer = make(3);
  tick(*preventer, 10);
  record.refusesLater = true;
  tick(*preventer, 1);
  EXPECT_FALSE(preventer->isPreventing());
  EXPECT_EQ(countEntries(fails, "Warning"), 1);
  tick(*preventer, 10);
  EXPECT_THAT(record.calls, ElementsAre("request"));
}

TEST_F(PreventComputerSleep, IsTheSettingsGroupOfTheSaver) {
  const auto preventer = make(0);
  preventer->preventSleepForHours(8);
  EXPECT_EQ(xplUserSettings().getInt64("preventComputerSleepUntilUTCtime_inMinutes", 0), thisMinute() + 480);
}

}  // namespace
