// Implements what the tests of real sounds share.
#include "services/linux/audible.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <thread>

#include "resources/waveFile.h"
#include "support/fileSystem.h"
#include "support/linux/resources.h"

Audible::Audible() {
  // What a test sets in the environment is taken back after it.
  for (const char* name : {"SDL_AUDIODRIVER", "SDL_DISKAUDIODELAY", "SDL_DISKAUDIOFILE"}) {
    m_environment.unset(name);
  }
}

std::string Audible::newPath() {
  return xplFileSystemMini::joinPath(root(), "sound" + std::to_string(++m_number));
}

std::vector<std::uint8_t> Audible::soundOf(int resource) {
  const auto bytes = findResource("wave", resource);
  const WaveFile wave = readWaveFile(bytes.value_or(std::span<const std::uint8_t>()));
  if (wave.bits == 8) {
    return {wave.data.begin(), wave.data.end()};
  }
  std::vector<std::uint8_t> sound;
  for (const double sample : samplesOf(wave)) {
    const auto word = static_cast<std::uint16_t>(static_cast<std::int16_t>(std::lround(sample * 32768.0)));
    sound.push_back(static_cast<std::uint8_t>(word & 0xFF));
    sound.push_back(static_cast<std::uint8_t>(word >> 8));
  }
  return sound;
}

bool Audible::isSilentFrom(const std::vector<std::uint8_t>& played, std::size_t begin, std::uint8_t silence) {
  return std::all_of(played.begin() + static_cast<std::ptrdiff_t>(begin), played.end(),
                     [silence](std::uint8_t byte) { return byte == silence; });
}

std::size_t Audible::threadCount() {
  return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator("/proc/self/task"),
                                                std::filesystem::directory_iterator()));
}

bool Audible::threadsComeDownTo(std::size_t count) {
  constexpr int attempts = 10'000;
  for (int i = 0; threadCount() != count; ++i) {
    if (i == attempts) {
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));  // nobody tells of the end of such a thread
  }
  return true;
}
