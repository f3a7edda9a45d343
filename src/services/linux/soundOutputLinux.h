// Plays the program's sounds on Linux, with one thread for all of them that starts with the first.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "services/linux/soundWorker.h"
#include "services/soundOutput.h"

class SoundOutputLinux : public xpliSoundOutput {
 public:
  // The bytes of the WAVE resource of this id, which live as long as the process; nothing where there is
  // none.
  using FindSound = std::function<std::optional<std::span<const std::uint8_t>>(int resourceId)>;

  explicit SoundOutputLinux(FindSound findSound) : m_findSound(std::move(findSound)) {}
  ~SoundOutputLinux() override;

  void stop() override;
  void play(int resourceId, bool loop) override;

 private:
  void logFailure();

  FindSound m_findSound;
  std::shared_ptr<SoundWorker> m_worker;  // null until the first sound
};
