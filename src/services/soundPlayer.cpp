// Implements the choice of sounds and the hourly check.
#include "services/soundPlayer.h"

#include <array>
#include <cstddef>
#include <utility>

#include "support/clock.h"

namespace {

constexpr std::array<int, 6> backgroundResources = {116, 115, 4, 117, 109, 112};
constexpr float checkInterval = 1.5F;  // seconds
constexpr int lastMinuteOfHour = 59;
constexpr int firstMorningHour = 7;
constexpr int lastMorningHour = 9;

}  // namespace

cSoundPlayer::cSoundPlayer(std::unique_ptr<xpliSoundOutput> output) : m_output(std::move(output)) {}

cSoundPlayer::~cSoundPlayer() {
  stopSound();
}

int cSoundPlayer::resourceOf(int index) {
  const bool isSound = index >= 1 && index <= static_cast<int>(backgroundResources.size());
  return isSound ? backgroundResources[static_cast<std::size_t>(index - 1)] : 0;
}

void cSoundPlayer::stopSound() {
  if (m_output) {
    m_output->stop();
  }
}

void cSoundPlayer::playSound(int index, bool loop) {
  stopSound();
  const int resource = resourceOf(index);
  if (m_output && resource != 0) {
    m_output->play(resource, loop);
  }
}

// Deliberate: the sound is stopped twice here and before the morning sound, where once would do. Logs and
// recordings of the calls are compared; do not take one away.
void cSoundPlayer::playCuckoo() {
  stopSound();
  stopSound();
  if (m_output) {
    m_output->play(cuckooResource, false);
  }
}

void cSoundPlayer::playMorningSound() {
  stopSound();
  stopSound();
  if (m_output) {
    m_output->play(morningResource, false);
  }
}

void cSoundPlayer::startBackgroundSound() {
  playSound(m_settings.snd_selectedSound.read(), m_settings.snd_loopSound.read());
}

// Deliberate: the clock strikes once, whatever the hour, and only where a check fell into the last minute of
// the hour before. A background sound that it interrupts does not come back: that is started once, with the
// sky. Do not resume it.
void cSoundPlayer::checkHourlySound(float elapsedSec) {
  if (!m_settings.snd_cookooEveryHour.read()) {
    return;
  }
  m_accumulatedTime += elapsedSec;
  if (m_accumulatedTime < checkInterval) {
    return;
  }
  m_accumulatedTime = 0.0F;
  const auto local = xplClock::localTime(xplClock::now());
  if (!local) {
    return;
  }
  if (local->tm_min == 0 && m_lastSeenMinute == lastMinuteOfHour) {
    if (local->tm_hour >= firstMorningHour && local->tm_hour <= lastMorningHour) {
      playMorningSound();
    } else {
      playCuckoo();
    }
  }
  m_lastSeenMinute = local->tm_min;
}
