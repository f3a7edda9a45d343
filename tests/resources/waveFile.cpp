// Takes wave files apart.
#include "resources/waveFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace {

using Bytes = std::span<const std::uint8_t>;

int number(Bytes bytes, std::size_t at, std::size_t count) {
  unsigned value = 0;
  for (std::size_t i = 0; i < count; ++i) {
    value |= static_cast<unsigned>(bytes[at + i]) << (8 * i);
  }
  return static_cast<int>(value);
}

int signed16(Bytes bytes, std::size_t at) {
  return static_cast<std::int16_t>(number(bytes, at, 2));
}

bool reads(Bytes bytes, std::size_t at, std::string_view text) {
  return bytes.size() >= at + text.size() &&
         std::equal(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

// Takes the chunk of this name from the front of the bytes; empty where another stands there.
Bytes takeChunk(Bytes& bytes, std::string_view name) {
  if (bytes.size() < 8 || !reads(bytes, 0, name)) {
    return {};
  }
  const auto size = static_cast<std::size_t>(number(bytes, 4, 4));
  if (size > bytes.size() - 8) {
    return {};
  }
  const Bytes content = bytes.subspan(8, size);
  bytes = bytes.subspan(std::min(8 + size + size % 2, bytes.size()));
  return content;
}

struct Coefficients {
  int last;
  int beforeLast;
};
constexpr std::array<int, 16> adaptation = {230, 230, 230, 230, 307, 409, 512, 614,
                                            768, 614, 512, 409, 307, 230, 230, 230};

void decodeBlock(const WaveFile& wave, Bytes block, std::vector<double>& samples) {
  const std::size_t predictor = 22 + 4 * static_cast<std::size_t>(block[0]);
  const Coefficients weights = {signed16(wave.format, predictor), signed16(wave.format, predictor + 2)};
  int step = signed16(block, 1);
  int last = signed16(block, 3);
  int beforeLast = signed16(block, 5);
  samples.push_back(beforeLast / 32768.0);
  samples.push_back(last / 32768.0);
  for (std::size_t i = 14; i < block.size() * 2; ++i) {
    const int code = i % 2 == 0 ? block[i / 2] >> 4 : block[i / 2] & 0xf;
    const int prediction = (last * weights.last + beforeLast * weights.beforeLast) / 256;
    beforeLast = last;
    last = std::clamp(prediction + (code < 8 ? code : code - 16) * step, -32768, 32767);
    step = std::max(step * adaptation[static_cast<std::size_t>(code)] / 256, 16);
    samples.push_back(last / 32768.0);
  }
}

}  // namespace

WaveFile readWaveFile(std::span<const std::uint8_t> file) {
  WaveFile wave;
  if (!reads(file, 0, "RIFF") || !reads(file, 8, "WAVE") ||
      static_cast<std::size_t>(number(file, 4, 4)) != file.size() - 8) {
    return wave;
  }
  Bytes rest = file.subspan(12);
  wave.format = takeChunk(rest, "fmt ");
  if (wave.format.size() < 16) {
    return wave;
  }
  wave.tag = number(wave.format, 0, 2);
  wave.channels = number(wave.format, 2, 2);
  wave.rate = number(wave.format, 4, 4);
  wave.bytesPerSecond = number(wave.format, 8, 4);
  wave.blockBytes = number(wave.format, 12, 2);
  wave.bits = number(wave.format, 14, 2);
  if (wave.tag == 2) {
    const Bytes fact = takeChunk(rest, "fact");
    if (wave.format.size() != 50 || fact.size() != 4) {
      return wave;
    }
    wave.blockSamples = number(wave.format, 18, 2);
    wave.factSamples = number(fact, 0, 4);
  }
  wave.data = takeChunk(rest, "data");
  wave.wellFormed = !wave.data.empty() && rest.empty();
  return wave;
}

std::vector<double> samplesOf(const WaveFile& wave) {
  std::vector<double> samples;
  if (wave.tag == 1) {
    for (const int level : wave.data) {
      samples.push_back((level - 128) / 128.0);
    }
    return samples;
  }
  const auto size = static_cast<std::size_t>(wave.blockBytes);
  for (std::size_t at = 0; at + size <= wave.data.size(); at += size) {
    decodeBlock(wave, wave.data.subspan(at, size), samples);
  }
  return samples;
}
