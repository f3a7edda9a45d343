// Writes wave files.
#include "sounds/waveFile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <stdexcept>

#include "sounds/adpcmEncoder.h"
#include "sounds/exactMath.h"
#include "sounds/filter.h"

namespace {

constexpr std::uint32_t pcm = 1;
constexpr std::uint32_t microsoftAdpcm = 2;

void put(std::string& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) {
    bytes += static_cast<char>((value >> (8 * i)) & 0xffU);
  }
}

void putChunk(std::string& bytes, const std::string& name, const std::string& content) {
  bytes += name;
  put(bytes, static_cast<std::uint32_t>(content.size()), 4);
  bytes += content;
  bytes.append(content.size() % 2, '\0');
}

void save(const std::string& chunks, const std::string& filename) {
  std::string bytes;
  putChunk(bytes, "RIFF", "WAVE" + chunks);
  std::ofstream file(filename, std::ios::binary | std::ios::trunc);
  if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
    throw std::runtime_error("cannot write " + filename);
  }
}

std::string formatOf(std::uint32_t tag, int rate, int bytesPerSecond, int blockBytes, std::uint32_t bits) {
  std::string format;
  put(format, tag, 2);
  put(format, 1, 2);  // channels
  put(format, static_cast<std::uint32_t>(rate), 4);
  put(format, static_cast<std::uint32_t>(bytesPerSecond), 4);
  put(format, static_cast<std::uint32_t>(blockBytes), 2);
  put(format, bits, 2);
  return format;
}

std::vector<std::int16_t> to16Bits(const Track& track) {
  std::vector<std::int16_t> samples;
  for (const double sample : track.samples) {
    samples.push_back(
        static_cast<std::int16_t>(std::clamp(std::floor(sample * 32767.0 + 0.5), -32768.0, 32767.0)));
  }
  return samples;
}

}  // namespace

void writePcm8(const Track& track, const std::string& filename) {
  // Eight bits are few. A little noise keeps the steps from sounding like a buzz, and what one sample is off
  // is given to the next, which takes the noise out of the highs, where it would be heard, into the lows.
  // Where the sound ends for good, the noise leaves with it, lest one hear it stop.
  constexpr double handedOn = 0.8;
  const double lingering = decayFactor(1.0, track.rate);
  Noise dither(1);
  double loudest = 0.0;  // of late, in steps
  double error = 0.0;
  std::string data;
  for (const double sample : track.samples) {
    loudest = std::max(std::abs(sample) * 127.0, lingering * loudest);
    const double strength = track.ending == Ending::Loops ? 1.0 : std::min(1.0, loudest);
    const double noise = 0.5 * strength * dither.next();
    const double wanted = sample * 127.0 + handedOn * error;
    const double level = sample == 0.0 ? 0.0 : std::clamp(std::floor(wanted + 0.5 + noise), -127.0, 127.0);
    error = std::clamp(level - wanted, -1.0, 1.0);
    data += static_cast<char>(static_cast<std::uint8_t>(level + 128.0));
  }
  std::string chunks;
  putChunk(chunks, "fmt ", formatOf(pcm, track.rate, track.rate, 1, 8));
  putChunk(chunks, "data", data);
  save(chunks, filename);
}

void writeAdpcm(const Track& track, const std::string& filename) {
  const int bytes = adpcm::blockBytes(track.rate);
  const auto count = static_cast<std::size_t>(adpcm::blockSamples(bytes));
  if (track.samples.size() % count != 0) {
    throw std::runtime_error("not a whole number of blocks in " + filename);
  }
  std::string format =
      formatOf(microsoftAdpcm, track.rate, track.rate * bytes / static_cast<int>(count), bytes, 4);
  put(format, 4 + 4 * adpcm::predictors.size(), 2);  // bytes that follow
  put(format, static_cast<std::uint32_t>(count), 2);
  put(format, adpcm::predictors.size(), 2);
  for (const auto& predictor : adpcm::predictors) {
    put(format, static_cast<std::uint32_t>(predictor.last), 2);
    put(format, static_cast<std::uint32_t>(predictor.beforeLast), 2);
  }
  const std::vector<std::int16_t> samples = to16Bits(track);
  std::string data;
  for (std::size_t i = 0; i < samples.size(); i += count) {
    data += adpcm::encodeBlock(std::span(samples).subspan(i, count));
  }
  std::string fact;
  put(fact, static_cast<std::uint32_t>(samples.size()), 4);
  std::string chunks;
  putChunk(chunks, "fmt ", format);
  putChunk(chunks, "fact", fact);
  putChunk(chunks, "data", data);
  save(chunks, filename);
}

std::size_t wholeBlocks(double seconds, int rate) {
  const auto count = static_cast<std::size_t>(adpcm::blockSamples(adpcm::blockBytes(rate)));
  return static_cast<std::size_t>(std::lround(seconds * rate / static_cast<double>(count))) * count;
}
