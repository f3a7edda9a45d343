// Reads a wave file for the tests: the fields of its format, and its samples.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

struct WaveFile {
  bool wellFormed = false;  // the chunks fill the file and are those that are wanted, in order
  int tag = 0;              // 1 is PCM, 2 Microsoft ADPCM
  int channels = 0;
  int rate = 0;
  int bytesPerSecond = 0;
  int blockBytes = 0;
  int bits = 0;
  int blockSamples = 0;                  // ADPCM only
  int factSamples = 0;                   // what the file says of its length; ADPCM only
  std::span<const std::uint8_t> format;  // the whole format chunk
  std::span<const std::uint8_t> data;
};

// Not well formed where a chunk is missing or reaches beyond the file.
WaveFile readWaveFile(std::span<const std::uint8_t> file);

// The samples in [-1, 1]; the file is well formed.
std::vector<double> samplesOf(const WaveFile& wave);
