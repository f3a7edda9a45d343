// Finds the sounds in the embedded table and decodes them with SDL, which plays them.
#include <SDL.h>

#include "resources/waveResource.h"
#include "support/linux/resources.h"

std::span<const std::uint8_t> waveResource(int id) {
  return findResource("wave", id).value_or(std::span<const std::uint8_t>());
}

std::vector<double> decodedByThePlatform(std::span<const std::uint8_t> file) {
  SDL_AudioSpec format{};
  std::uint8_t* bytes = nullptr;
  std::uint32_t size = 0;
  SDL_RWops* source = SDL_RWFromConstMem(file.data(), static_cast<int>(file.size()));
  if (SDL_LoadWAV_RW(source, 1, &format, &bytes, &size) == nullptr) {
    return {};
  }
  std::vector<double> samples;
  if (format.format == AUDIO_U8) {
    for (std::uint32_t i = 0; i < size; ++i) {
      samples.push_back((bytes[i] - 128) / 128.0);
    }
  } else if (format.format == AUDIO_S16LSB) {
    for (std::uint32_t i = 0; i + 1 < size; i += 2) {
      samples.push_back(static_cast<std::int16_t>(bytes[i] | (bytes[i + 1] << 8)) / 32768.0);
    }
  }
  SDL_FreeWAV(bytes);
  return samples;
}
