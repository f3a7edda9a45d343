// Adds tones to a track, sine by sine.
#include "sounds/tones.h"

#include <algorithm>

#include "sounds/exactMath.h"

namespace {

// From 0 to 1 over the attack, smoothly.
double attackAt(double seconds, double attack) {
  return seconds >= attack ? 1.0 : 0.5 - 0.5 * cosineOfTurns(0.5 * seconds / attack);
}

}  // namespace

double keptAt(double frequency, int rate) {
  return std::clamp((0.46 - frequency / rate) / 0.08, 0.0, 1.0);
}

void addStruckTone(Track& track, const Strike& strike, std::span<const Partial> partials) {
  const std::size_t start = track.indexOf(strike.start);
  for (const Partial& partial : partials) {
    const double frequency = strike.frequency * partial.ratio;
    double level = strike.level * partial.level * keptAt(frequency, track.rate);
    const double seconds = partial.seconds * strike.ringing;
    const double factor = decayFactor(seconds, track.rate);
    const std::size_t count = track.indexOf(seconds * 1.5);  // 90 decibels down
    for (std::size_t i = 0; i < count; ++i) {
      const double at = static_cast<double>(i) / track.rate;
      track.add(start + i, level * attackAt(at, strike.attack) * sineOfTurns(frequency * at));
      level *= factor;
    }
  }
}

void addSungTone(Track& track, const SungTone& tone) {
  const std::size_t start = track.indexOf(tone.start);
  const std::size_t count = track.indexOf(tone.level.end());
  double phase = 0.0;  // turns
  for (std::size_t i = 0; i < count; ++i) {
    const double at = static_cast<double>(i) / track.rate;
    const double frequency = tone.frequency(at);
    double sum = 0.0;
    for (const Partial& partial : tone.partials) {
      sum +=
          partial.level * keptAt(frequency * partial.ratio, track.rate) * sineOfTurns(phase * partial.ratio);
    }
    track.add(start + i, tone.level(at) * sum);
    phase += frequency / track.rate;
  }
}
