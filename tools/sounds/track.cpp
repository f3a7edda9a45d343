// What is done to a sound as a whole.
#include "sounds/track.h"

#include <algorithm>
#include <cmath>

#include "sounds/exactMath.h"

void Track::add(std::size_t at, double value) {
  if (at < samples.size()) {
    samples[at] += value;
  } else if (ending == Ending::Loops) {
    samples[at % samples.size()] += value;
  }
}

void Track::mix(const Track& other, double factor) {
  for (std::size_t i = 0; i < samples.size(); ++i) {
    samples[i] += factor * other.samples[i];
  }
}

void Track::normalize(double peakDecibels) {
  double peak = 0.0;
  for (const double sample : samples) {
    peak = std::max(peak, std::abs(sample));
  }
  const double factor = amplitudeOf(peakDecibels) / peak;
  for (double& sample : samples) {
    sample *= factor;
  }
}

Track Track::settled(std::size_t length, double seconds, double strength) const {
  Track loop(rate, length, Ending::Loops);
  const std::size_t sinking = indexOf(seconds);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    double factor = 1.0;
    if (i + sinking > length) {
      const double sunk =
          std::min(1.0, static_cast<double>(i + sinking - length) / static_cast<double>(sinking));
      factor = strength + (1.0 - strength) * (0.5 + 0.5 * cosineOfTurns(0.5 * sunk));
    }
    loop.add(i, factor * samples[i]);
  }
  return loop;
}

void Track::fade(double inSeconds, double outSeconds) {
  const std::size_t in = indexOf(inSeconds);
  const std::size_t out = indexOf(outSeconds);
  const auto rise = [](std::size_t i, std::size_t count) {
    return 0.5 - 0.5 * cosineOfTurns(0.5 * static_cast<double>(i) / static_cast<double>(count));
  };
  for (std::size_t i = 0; i < in; ++i) {
    samples[i] *= rise(i, in);
  }
  for (std::size_t i = 0; i < out; ++i) {
    samples[samples.size() - 1 - i] *= rise(i, out);
  }
}
