// Implements the playing of one sound.
#include "services/linux/sdlSound.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

#include <alsa/asoundlib.h>

namespace {

constexpr unsigned periodsPerSecond = 40;  // how often the device asks for samples: a stop is heard at once

[[noreturn]] void fail(const char* what) {
  throw std::runtime_error(std::string(what) + ": " + SDL_GetError());
}

// Without a card ALSA would write a page of reasons to standard error; the log has the one that counts.
void ignoreReport(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                  const char* /*format*/, ...) {}

}  // namespace

// SDL's audio alone is started, and not its events as SDL_InitSubSystem would: those catch signals, which end
// the saver, and take a tenth of a second to stop.
SdlSound::System::System() {
  snd_lib_error_set_handler(ignoreReport);
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Lunaria");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_NAME, "Lunaria");
  if (SDL_AudioInit(nullptr) != 0) {
    fail("no sound system");
  }
}

SdlSound::System::~System() {
  SDL_AudioQuit();
}

SdlSound::SdlSound(std::span<const std::uint8_t> wave, bool loop, std::function<void()> whenOver)
    : m_loop(loop), m_whenOver(std::move(whenOver)) {
  decode(wave);
  m_system = std::make_unique<System>();
  open();
}

SdlSound::~SdlSound() {
  SDL_CloseAudioDevice(m_device);
}

void SdlSound::decode(std::span<const std::uint8_t> wave) {
  if (wave.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    throw std::runtime_error("the sound is too long");
  }
  std::uint8_t* samples = nullptr;
  std::uint32_t size = 0;
  SDL_RWops* stream = SDL_RWFromConstMem(wave.data(), static_cast<int>(wave.size()));
  if (stream == nullptr || SDL_LoadWAV_RW(stream, 1, &m_format, &samples, &size) == nullptr) {
    fail("the sound is damaged");
  }
  m_samples.reset(samples);
  m_size = size;
  if (m_size == 0) {
    throw std::runtime_error("the sound is empty");
  }
}

void SdlSound::open() {
  const auto wanted = static_cast<unsigned>(m_format.freq) / periodsPerSecond;
  m_format.samples = static_cast<std::uint16_t>(std::bit_floor(std::clamp(wanted, 64U, 4096U)));
  m_format.callback = fill;
  m_format.userdata = this;
  SDL_AudioSpec obtained{};
  m_device = SDL_OpenAudioDevice(nullptr, 0, &m_format, &obtained, 0);
  if (m_device == 0) {
    fail("no sound device");
  }
  m_format.silence = obtained.silence;
  SDL_PauseAudioDevice(m_device, 0);
}

void SDLCALL SdlSound::fill(void* self, std::uint8_t* output, int length) {
  static_cast<SdlSound*>(self)->fill({output, static_cast<std::size_t>(length)});
}

void SdlSound::fill(std::span<std::uint8_t> output) {
  while (!output.empty()) {
    if (m_position == m_size && m_loop) {
      m_position = 0;
    }
    if (m_position == m_size) {
      std::fill(output.begin(), output.end(), m_format.silence);
      if (m_whenOver) {
        std::exchange(m_whenOver, nullptr)();
      }
      return;
    }
    const std::size_t count = std::min(output.size(), m_size - m_position);
    std::memcpy(output.data(), m_samples.get() + m_position, count);
    m_position += count;
    output = output.subspan(count);
  }
}
