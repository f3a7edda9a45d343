// One sound that plays through SDL, from its making to its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include <SDL.h>

// Decodes a WAVE file in memory and plays it. Making and destroying one may wait for the sound system; only
// one lives at a time.
class SdlSound {
 public:
  // wave: the bytes of the file, needed during this call alone. loop: start again at the end, without a gap.
  // whenOver: called once, from SDL's thread, when a sound that is not looped has been handed over whole.
  // Throws std::runtime_error, with the reason, where the file is damaged or the sound system refuses.
  SdlSound(std::span<const std::uint8_t> wave, bool loop, std::function<void()> whenOver);
  ~SdlSound();
  SdlSound(const SdlSound&) = delete;
  SdlSound& operator=(const SdlSound&) = delete;

 private:
  // The sound system, for as long as one sound is played: a server that was started anew is found again.
  struct System {
    System();
    ~System();
    System(const System&) = delete;
    System& operator=(const System&) = delete;
  };
  struct FreeWave {
    void operator()(std::uint8_t* samples) const { SDL_FreeWAV(samples); }
  };

  static void SDLCALL fill(void* self, std::uint8_t* output, int length);
  void fill(std::span<std::uint8_t> output);
  void decode(std::span<const std::uint8_t> wave);
  void open();

  SDL_AudioSpec m_format{};
  std::unique_ptr<std::uint8_t, FreeWave> m_samples;
  std::size_t m_size = 0;      // bytes of samples
  std::size_t m_position = 0;  // of the next byte to be played, in [0, m_size]
  bool m_loop;
  std::function<void()> m_whenOver;  // empty once it was called
  std::unique_ptr<System> m_system;
  SDL_AudioDeviceID m_device = 0;
};
