// What the tests of the sound player share: an output that notes its calls, and a clock of the local time.
#pragma once

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
