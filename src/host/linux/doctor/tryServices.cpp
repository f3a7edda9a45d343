// Tries sound and sleep prevention as the saver uses them.
#include <array>
#include <chrono>
#include <cstdint>
#include <exception>
#include <thread>

#include <SDL.h>
#include <unistd.h>

#include "host/linux/doctor/boundedChild.h"
#include "host/linux/doctor/realSystem.h"
#include "services/linux/keepAwakeLinux.h"
#include "services/linux/sdlSound.h"

namespace {

constexpr int soundTime = 5000;  // milliseconds; a sound server may have to be started first
constexpr std::chrono::milliseconds answerTime{2000};

// A WAVE file of a tenth of a second without a sound: 8-bit samples, 800 of them at 8000 a second.
constexpr std::size_t headSize = 44;
constexpr std::size_t sampleCount = 800;
std::array<std::uint8_t, headSize + sampleCount> silence() {
  constexpr std::array<std::uint8_t, headSize> head{
      'R', 'I', 'F', 'F', 0x44, 0x03, 0,   0,   'W', 'A',  'V',  'E',  'f', 'm',  't',
      ' ', 16,  0,   0,   0,    1,    0,   1,   0,   0x40, 0x1F, 0,    0,   0x40, 0x1F,
      0,   0,   1,   0,   8,    0,    'd', 'a', 't', 'a',  0x20, 0x03, 0,   0};
  constexpr std::uint8_t middle = 128;  // of unsigned samples: no sound
  std::array<std::uint8_t, headSize + sampleCount> file{};
  file.fill(middle);
  std::copy(head.begin(), head.end(), file.begin());
  return file;
}

// Writes why it did not work; nothing where it did.
int openSound(int output) {
  std::string reason;
  try {
    const SdlSound sound(silence(), true, {});
  } catch (const std::exception& error) {
    reason = error.what();
  }
  return ::write(output, reason.data(), reason.size()) == static_cast<ssize_t>(reason.size()) ? 0 : 1;
}

}  // namespace

// In a process of its own: a sound server that hangs cannot be left otherwise.
std::string RealSystem::trySound() {
  return runBounded(soundTime, openSound).value_or("the sound system does not answer");
}

std::string RealSystem::trySleepPrevention() {
  KeepAwakeLinux keepAwake(answerTime);
  bool isRefused = !keepAwake.request();
  while (!isRefused && !keepAwake.isGranted()) {
    isRefused = keepAwake.wasRefused();
    std::this_thread::sleep_for(std::chrono::milliseconds(isRefused ? 0 : 10));
  }
  keepAwake.release();
  return isRefused ? keepAwake.refusal() : "";
}
