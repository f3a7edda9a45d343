// Implements the preview of sounds.
#include "host/sheet/soundPreview.h"

SoundPreview soundPreview(cSoundPlayer& player) {
  return {[&player](int sound) { player.playSound(sound, false); }, [&player] { player.playCuckoo(); },
          [&player] { player.stopSound(); }};
}
