// When sleep is prevented, and for how long.
#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "recordingServices.h"
#include "services/preventComputerSleep.h"
#include "support/settings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char asks[] = "cPreventComputerSleep calls preventIdleSleep()";
constexpr char fails[] = "cPreventComputerSleep preventIdleSleep() failed";
constexpr char looks[] = "cPreventComputerSleep.changeSettingIfTimeHasExpired()";
constexpr char expires[] = "cPreventComputerSleep expired and changing setting to NONE";
constexpr char ticks[] = "cPreventComputerSleep is tick time";
constexpr char restores[] = "cPreventComputerSleep calls restoreIdleSleep()";

class PreventComputerSleep : public PrivateFolders {
 protected:
  // "until" is given in minutes from now.
  std::unique_ptr<cPreventComputerSleep> make(int mode, std::int64_t minutesFromNow = 0) {
    xplUserSettings().set("preventComputerSleep", mode);
    xplUserSettings().set("preventComputerSleepUntilUTCtime_inMinutes", thisMinute() + minutesFromNow);
    return std::make_unique<cPreventComputerSleep>(std::make_unique<RecordingKeepAwake>(record));
  }
  std::int64_t thisMinute() { return clock.now().seconds / 60; }
  static std::string storedMode() { return xplUserSettings().get("preventComputerSleep").value_or("none"); }
  static void tick(cPreventComputerSleep& preventer, int times) {
    for (int i = 0; i < times; ++i) {
      preventer.tick();
    }
  }
  // The log's lines that speak of sleep.
  std::vector<std::string> entries() const {
    std::vector<std::string> found;
    for (const auto& entry : logEntries()) {
      if (entry.rfind("cPreventComputerSleep", 0) == 0) {
        found.push_back(entry);
      }
    }
    return found;
  }

  KeepAwakeRecord record;
};

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

TEST_F(PreventComputerSleep, RestoringTwiceIsRestoringOnce) {
  const auto preventer = make(3);
  preventer->restoreIdleSleep();
  preventer->restoreIdleSleep();
  EXPECT_THAT(record.calls, ElementsAre("request", "release"));
}

TEST_F(PreventComputerSleep, IsTheSettingsGroupOfTheSaver) {
  const auto preventer = make(0);
  preventer->preventSleepForHours(8);
  EXPECT_EQ(xplUserSettings().getInt64("preventComputerSleepUntilUTCtime_inMinutes", 0), thisMinute() + 480);
}

}  // namespace
