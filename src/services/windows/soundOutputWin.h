// Plays the program's sounds with PlaySoundA.
#pragma once

#include "services/soundOutput.h"
#include "support/windows/shellHeaders.h"

class SoundOutputWin : public xpliSoundOutput {
 public:
  using PlaySoundFunction = BOOL WINAPI(LPCSTR name, HMODULE module, DWORD flags);

  // playSound: PlaySoundA, or what stands in for it in tests.
  explicit SoundOutputWin(PlaySoundFunction* playSound) : m_playSound(playSound) {}

  // The platform's results are ignored: what cannot be played is silent.
  void stop() override;
  void play(int resourceId, bool loop) override;

 private:
  PlaySoundFunction* m_playSound;
};
