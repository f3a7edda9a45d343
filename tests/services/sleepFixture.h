// What the tests of sleep prevention share: a platform that notes its calls, and the log's lines.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "services/preventComputerSleep.h"
#include "services/recordingServices.h"
#include "support/settings.h"

inline constexpr char asks[] = "cPreventComputerSleep calls preventIdleSleep()";
inline constexpr char fails[] = "cPreventComputerSleep preventIdleSleep() failed";
inline constexpr char looks[] = "cPreventComputerSleep.changeSettingIfTimeHasExpired()";
inline constexpr char expires[] = "cPreventComputerSleep expired and changing setting to NONE";
inline constexpr char ticks[] = "cPreventComputerSleep is tick time";
inline constexpr char restores[] = "cPreventComputerSleep calls restoreIdleSleep()";

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
  static std::string modeInFile() {
    return xplSettings(xplSettings::scopeUser).get("preventComputerSleep").value_or("none");
  }
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
