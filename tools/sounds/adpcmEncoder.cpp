// Finds for each block the codes that decode nearest to its samples.
#include "sounds/adpcmEncoder.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <vector>

namespace adpcm {
namespace {

constexpr std::int32_t smallestStep = 16;
constexpr std::size_t kept = 16;  // ways that are followed at a time
// How a step grows or shrinks by the code that was just used, in 256ths (from the same document).
constexpr std::array<std::int32_t, 16> adaptation = {230, 230, 230, 230, 307, 409, 512, 614,
                                                     768, 614, 512, 409, 307, 230, 230, 230};

// Decoders divide a prediction by 256 in two ways: towards nothing, or down. Over a block the difference adds
// up, so both are followed, and the codes suit both.
constexpr std::size_t decoders = 2;

// What the decoders know after some codes, and how far their samples are from what was wanted.
struct Way {
  std::array<std::int32_t, decoders> last{};
  std::array<std::int32_t, decoders> beforeLast{};
  std::int32_t step = smallestStep;
  std::int64_t error = 0;      // sum of squares
  std::size_t parent = 0;      // index among the ways of the sample before
  std::uint8_t code = 0;       // four bits
  std::int32_t firstStep = 0;  // the step that the block begins with
};

using Prediction = std::array<std::int32_t, decoders>;

Prediction predict(const Way& way, const Coefficients& predictor) {
  const auto sum = [&](std::size_t i) {
    return way.last[i] * predictor.last + way.beforeLast[i] * predictor.beforeLast;
  };
  return {sum(0) / 256, sum(1) >> 8};
}

Way follow(const Way& from, std::size_t parent, const Prediction& prediction, std::int32_t code,
           std::int16_t wanted) {
  Way way = from;
  way.parent = parent;
  way.code = static_cast<std::uint8_t>(code & 0xf);
  way.beforeLast = from.last;
  way.step = std::max(from.step * adaptation[way.code] / 256, smallestStep);
  for (std::size_t i = 0; i < decoders; ++i) {
    way.last[i] = std::clamp(prediction[i] + code * from.step, -32768, 32767);
    const std::int64_t distance = way.last[i] - wanted;
    way.error += distance * distance;
  }
  return way;
}

// The codes of a block for one predictor, and the error that they leave.
struct Attempt {
  std::int64_t error = 0;
  std::int32_t firstStep = smallestStep;
  std::vector<std::uint8_t> codes;
};

std::vector<Way> waysToBegin(std::span<const std::int16_t> samples) {
  std::vector<Way> ways;
  for (std::int32_t step = smallestStep; step <= 8192; step *= 2) {
    ways.push_back({.last = {samples[1], samples[1]},
                    .beforeLast = {samples[0], samples[0]},
                    .step = step,
                    .firstStep = step});
  }
  return ways;
}

Attempt readBack(const std::vector<std::vector<Way>>& history) {
  const Way& best = history.back().front();
  Attempt attempt{best.error, best.firstStep, std::vector<std::uint8_t>(history.size() - 1)};
  std::size_t index = 0;
  for (std::size_t i = history.size() - 1; i > 0; --i) {
    attempt.codes[i - 1] = history[i][index].code;
    index = history[i][index].parent;
  }
  return attempt;
}

// A code that is best for its own sample may spoil the step for the next ones, so several ways are followed
// and the best of them at the end of the block is taken.
Attempt encodeWith(const Coefficients& predictor, std::span<const std::int16_t> samples) {
  std::vector<std::vector<Way>> history = {waysToBegin(samples)};
  for (const std::int16_t wanted : samples.subspan(2)) {
    std::vector<Way> next;
    const auto& ways = history.back();
    for (std::size_t i = 0; i < ways.size(); ++i) {
      const Way& way = ways[i];
      const Prediction prediction = predict(way, predictor);
      const std::int32_t nearest = (wanted - prediction[0]) / way.step;
      const std::int32_t middle = std::clamp(nearest, -7, 6);
      for (std::int32_t code = middle - 1; code <= middle + 1; ++code) {
        next.push_back(follow(way, i, prediction, code, wanted));
      }
    }
    const auto end = next.begin() + static_cast<std::ptrdiff_t>(std::min(kept, next.size()));
    std::partial_sort(next.begin(), end, next.end(), [](const Way& a, const Way& b) {
      return a.error != b.error ? a.error < b.error : a.step < b.step;
    });
    next.erase(end, next.end());
    history.push_back(std::move(next));
  }
  return readBack(history);
}

void put16(std::string& bytes, std::int32_t value) {
  bytes += static_cast<char>(value & 0xff);
  bytes += static_cast<char>((value >> 8) & 0xff);
}

}  // namespace

int blockBytes(int rate) {
  return rate > 11025 ? 512 : 256;
}

int blockSamples(int bytes) {
  return (bytes - 7) * 2 + 2;
}

std::string encodeBlock(std::span<const std::int16_t> samples) {
  std::size_t chosen = 0;
  Attempt best = encodeWith(predictors[0], samples);
  for (std::size_t i = 1; i < predictors.size(); ++i) {
    if (Attempt attempt = encodeWith(predictors[i], samples); attempt.error < best.error) {
      best = std::move(attempt);
      chosen = i;
    }
  }
  std::string bytes(1, static_cast<char>(chosen));
  put16(bytes, best.firstStep);
  put16(bytes, samples[1]);
  put16(bytes, samples[0]);
  for (std::size_t i = 0; i < best.codes.size(); i += 2) {
    const int second = i + 1 < best.codes.size() ? best.codes[i + 1] : 0;
    bytes += static_cast<char>((best.codes[i] << 4) | second);
  }
  return bytes;
}

}  // namespace adpcm
