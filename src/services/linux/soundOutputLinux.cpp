// Implements the sounds on Linux.
#include "services/linux/soundOutputLinux.h"

#include <system_error>

#include "services/platform.h"
#include "support/linux/resources.h"
#include "support/log.h"

std::unique_ptr<xpliSoundOutput> xplMakeSoundOutput() {
  return std::make_unique<SoundOutputLinux>([](int id) { return findResource("wave", id); });
}

SoundOutputLinux::~SoundOutputLinux() {
  logFailure();
}

void SoundOutputLinux::stop() {
  logFailure();
  if (const auto worker = SoundWorker::sharedIfAny()) {
    worker->stop();
  }
}

void SoundOutputLinux::play(int resourceId, bool loop) {
  stop();
  const auto wave = m_findSound(resourceId);
  if (!wave || wave->empty()) {
    return;
  }
  try {
    m_worker = SoundWorker::shared();
    m_worker->play(*wave, loop);
  } catch (const std::system_error& error) {
    logInfo().addf("silent: %s", error.what());
  }
}

// The worker's thread leaves the log alone, which it might outlive.
void SoundOutputLinux::logFailure() {
  const std::string failure = m_worker ? m_worker->takeFailure() : std::string();
  if (!failure.empty()) {
    logInfo().addf("silent: %s", failure.c_str());
  }
}
