// What the tests of the sound player share: an output that notes its calls, and a clock of the local time.
#pragma once

#include <ctime>
#include <memory>
#include <utility>

#include "harness/privateFolders.h"
#include "services/recordingServices.h"
#include "services/soundPlayer.h"

class SoundPlayer : public PrivateFolders {
 protected:
  std::unique_ptr<cSoundPlayer> makePlayer() {
    return std::make_unique<cSoundPlayer>(std::make_unique<RecordingSound>(calls));
  }
  // Sets the clock so that the local time is this one on the day of the tests.
  void setLocalTime(int hour, int minute, int second) {
    std::tm local = *xplClock::localTime(clock.now().seconds);
    local.tm_hour = hour;
    local.tm_min = minute;
    local.tm_sec = second;
    local.tm_isdst = -1;
    clock.set({std::mktime(&local), 0});
  }
  // A check at the last second of an hour and one after it.
  Calls callsWhenItTurns(int hour) {
    auto player = makePlayer();
    setLocalTime(hour == 0 ? 23 : hour - 1, 59, 59);
    player->checkHourlySound(1.5F);
    setLocalTime(hour, 0, 0);
    player->checkHourlySound(1.5F);
    player.reset();
    return std::exchange(calls, {});
  }

  Calls calls;
};
