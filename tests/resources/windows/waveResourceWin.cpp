// Finds the sounds among the program's resources and decodes them with the audio compression manager, as the
// platform's player does.
#include <cstring>

#include <windows.h>
#include <mmreg.h>
#include <mmsystem.h>
#include <msacm.h>

#include "resources/waveFile.h"
#include "resources/waveResource.h"

std::span<const std::uint8_t> waveResource(int id) {
  const HRSRC place = FindResourceA(nullptr, MAKEINTRESOURCEA(id), "WAVE");
  if (place == nullptr) {
    return {};
  }
  return {static_cast<const std::uint8_t*>(LockResource(LoadResource(nullptr, place))),
          SizeofResource(nullptr, place)};
}

namespace {

std::vector<std::uint8_t> converted(std::span<const std::uint8_t> format, std::span<const std::uint8_t> data,
                                    WAVEFORMATEX& wanted) {
  std::vector<std::uint8_t> from(format.begin(), format.end());
  from.resize(from.size() + sizeof(WAVEFORMATEX));  // a plain format is shorter than the structure
  HACMSTREAM stream = nullptr;
  if (acmStreamOpen(&stream, nullptr, reinterpret_cast<WAVEFORMATEX*>(from.data()), &wanted, nullptr, 0, 0,
                    ACM_STREAMOPENF_NONREALTIME) != 0) {
    return {};
  }
  std::vector<std::uint8_t> source(data.begin(), data.end());
  std::vector<std::uint8_t> target(data.size() * 8);
  ACMSTREAMHEADER header{};
  header.cbStruct = sizeof(header);
  header.pbSrc = source.data();
  header.cbSrcLength = static_cast<DWORD>(source.size());
  header.pbDst = target.data();
  header.cbDstLength = static_cast<DWORD>(target.size());
  const bool done = acmStreamPrepareHeader(stream, &header, 0) == 0 &&
                    acmStreamConvert(stream, &header, ACM_STREAMCONVERTF_START | ACM_STREAMCONVERTF_END) == 0;
  target.resize(done ? header.cbDstLengthUsed : 0);
  acmStreamUnprepareHeader(stream, &header, 0);
  acmStreamClose(stream, 0);
  return target;
}

}  // namespace

std::vector<double> decodedByThePlatform(std::span<const std::uint8_t> file) {
  const WaveFile wave = readWaveFile(file);
  WAVEFORMATEX wanted{};
  wanted.wFormatTag = WAVE_FORMAT_PCM;
  wanted.nChannels = 1;
  wanted.nSamplesPerSec = static_cast<DWORD>(wave.rate);
  wanted.wBitsPerSample = 16;
  wanted.nBlockAlign = 2;
  wanted.nAvgBytesPerSec = wanted.nSamplesPerSec * 2;
  const std::vector<std::uint8_t> bytes = converted(wave.format, wave.data, wanted);
  std::vector<double> samples;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    samples.push_back(static_cast<std::int16_t>(bytes[i] | (bytes[i + 1] << 8)) / 32768.0);
  }
  return samples;
}
