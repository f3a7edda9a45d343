// Encodes samples as Microsoft ADPCM: four bits a sample, in blocks that are decoded each by itself.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace adpcm {

// A prediction is (the last sample times last + the one before times beforeLast) / 256.
struct Coefficients {
  std::int32_t last;
  std::int32_t beforeLast;
};

// The seven predictors that every decoder of the format has (Microsoft's "New Multimedia Data Types and Data
// Techniques", section on MS ADPCM).
inline constexpr std::array<Coefficients, 7> predictors = {
    {{256, 0}, {512, -256}, {0, 0}, {192, 64}, {240, 0}, {460, -208}, {392, -232}}};

// Bytes of a block at a rate in samples a second: 256 up to 11025, 512 at 22050, as Microsoft's own encoder
// has it.
int blockBytes(int rate);

// Samples in a block of that many bytes: two in its head of seven bytes, two in each byte that follows.
int blockSamples(int bytes);

// The bytes of one block. Wants at least two samples.
std::string encodeBlock(std::span<const std::int16_t> samples);

}  // namespace adpcm
