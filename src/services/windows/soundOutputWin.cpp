// Implements the sounds on Windows.
#include "services/windows/soundOutputWin.h"

#include <mmsystem.h>

#include "services/platform.h"

namespace {

constexpr DWORD playOnce = SND_RESOURCE | SND_ASYNC;
static_assert(playOnce == 0x40005 && (playOnce | SND_LOOP) == 0x4000D);

}  // namespace

std::unique_ptr<xpliSoundOutput> xplMakeSoundOutput() {
  return std::make_unique<SoundOutputWin>(PlaySoundA);
}

void SoundOutputWin::stop() {
  m_playSound(nullptr, nullptr, SND_ASYNC);
}

void SoundOutputWin::play(int resourceId, bool loop) {
  m_playSound(MAKEINTRESOURCEA(resourceId), GetModuleHandleA(nullptr), playOnce | (loop ? SND_LOOP : 0U));
}
