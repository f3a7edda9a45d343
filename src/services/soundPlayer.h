// The sounds of the sky: the background sound, and the clock that strikes on the hour.
#pragma once

#include <memory>

#include "services/soundOutput.h"
#include "support/settingsGroups.h"

class cSoundPlayer {
 public:
  // Ids of the WAVE resources that are no background sound.
  static constexpr int cuckooResource = 111;
  static constexpr int morningResource = 114;

  // Takes the output over; without one the player is silent.
  explicit cSoundPlayer(std::unique_ptr<xpliSoundOutput> output = nullptr);
  // Ends all sound.
  ~cSoundPlayer();
  cSoundPlayer(const cSoundPlayer&) = delete;
  cSoundPlayer& operator=(const cSoundPlayer&) = delete;

  void stopSound();
  // Plays background sound `index`, in [1, 6], instead of what plays now; any other index only stops.
  void playSound(int index, bool loop);
  // Strikes the hour, once, instead of what plays now.
  void playCuckoo();
  // Plays the background sound that the user chose, as the settings hold it at this moment.
  void startBackgroundSound();
  // Once a frame, with the frame's time in seconds: strikes where the hour has just turned.
  void checkHourlySound(float elapsedSec);

  // The WAVE resource of background sound `index`; 0 outside [1, 6].
  static int resourceOf(int index);

 private:
  void playMorningSound();

  std::unique_ptr<xpliSoundOutput> m_output;  // null: silent
  cSoundSettings m_settings;
  float m_accumulatedTime = 0.0F;  // seconds since the last look at the clock
  int m_lastSeenMinute = -1;       // of the local time, in [0, 59]; -1 before the first look
};
