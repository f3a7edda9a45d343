// The instruments of the blues: plucked strings, a drawbar organ, brushes.
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "sounds/blues.h"
#include "sounds/curve.h"
#include "sounds/exactMath.h"
#include "sounds/filter.h"
#include "sounds/tones.h"

namespace blues {
namespace {

constexpr int overtones = 9;

// The neck pickup of a hollow guitar: a string plucked at a fifth of its length, heard from its warm side.
// The higher a partial, the sooner it is gone.
std::vector<Partial> stringPartials() {
  std::vector<Partial> partials;
  for (int n = 1; n <= overtones; ++n) {
    const double plucked = std::abs(sineOfTurns(0.5 * n * 0.21)) / (0.5 * n * n + 0.5);
    partials.push_back({n * (1.0 + 0.00012 * n * n), plucked, 4.2 / (1.0 + 0.45 * (n - 1))});
  }
  return partials;
}

// Semitones away from the key at a moment of the note.
double bentAt(const GuitarNote& note, double at) {
  constexpr double bendSeconds = 0.22;
  constexpr double steadySeconds = 0.35;
  const double t = std::clamp(at / bendSeconds, 0.0, 1.0);
  const double bend = note.bendFrom * (1.0 - t * t * (3.0 - 2.0 * t));
  const double trembling = std::clamp((at - steadySeconds) / 0.4, 0.0, 1.0);
  return bend + note.tremble * trembling * sineOfTurns(4.7 * (at - steadySeconds));
}

// 1 while the finger holds the string, then quickly nothing; soft at the beginning.
double heldAt(double at, double length) {
  constexpr double attack = 0.008;
  constexpr double release = 0.09;
  const double in = std::min(at / attack, 1.0);
  const double out = std::clamp((length + release - at) / release, 0.0, 1.0);
  return in * in * (3.0 - 2.0 * in) * out * out * (3.0 - 2.0 * out);
}

constexpr std::array<Partial, 6> bassString = {{{1.0, 0.75, 3.0},
                                                {2.0, 0.40, 1.8},
                                                {3.0, 0.22, 1.1},
                                                {4.0, 0.10, 0.8},
                                                {5.0, 0.05, 0.5},
                                                {6.0, 0.03, 0.4}}};

constexpr std::array<Partial, 4> drawbars = {
    {{1.0, 1.0, 0.0}, {2.0, 0.32, 0.0}, {3.0, 0.22, 0.0}, {4.0, 0.06, 0.0}}};

}  // namespace

void addGuitar(Track& track, const GuitarNote& note, double beatSeconds) {
  const std::size_t start = track.indexOf(note.beat * beatSeconds);
  const double length = note.beats * beatSeconds;
  const std::size_t count = track.indexOf(length + 0.09);
  std::vector<Partial> partials = stringPartials();
  std::vector<double> factors;
  factors.reserve(partials.size());
  for (const Partial& partial : partials) {
    factors.push_back(decayFactor(partial.seconds * twoToThe((62.0 - note.key) / 24.0), track.rate));
  }
  double phase = 0.0;  // turns
  for (std::size_t i = 0; i < count; ++i) {
    const double at = static_cast<double>(i) / track.rate;
    const double frequency = frequencyOf(note.key + bentAt(note, at));
    double sum = 0.0;
    for (std::size_t n = 0; n < partials.size(); ++n) {
      sum += partials[n].level * keptAt(frequency * partials[n].ratio, track.rate) *
             sineOfTurns(phase * partials[n].ratio);
      partials[n].level *= factors[n];
    }
    track.add(start + i, note.level * heldAt(at, length) * sum);
    phase += frequency / track.rate;
  }
}

void addBass(Track& track, const Note& note, double beatSeconds) {
  addStruckTone(track, {note.beat * beatSeconds, frequencyOf(note.key), note.level, 0.018, 0.7}, bassString);
}

void addOrgan(Track& track, const Note& note, double beats, double beatSeconds) {
  // The rotating horn, slow: it turns three times in four seconds and makes the tone come and go.
  constexpr double turnsASecond = 0.75;
  const double start = note.beat * beatSeconds;
  const double length = beats * beatSeconds;
  std::vector<CurvePoint> level = {{0.0, 0.0}};
  for (double at = 0.12; at < length; at += 0.1) {
    level.push_back({at, note.level * (1.0 + 0.22 * sineOfTurns(turnsASecond * (start + at)))});
  }
  level.push_back({length + 0.25, 0.0});
  addSungTone(track, {start, Curve({{0.0, frequencyOf(note.key)}}), Curve(std::move(level)), drawbars});
}

void addBrush(Track& track, double start, double level) {
  constexpr double seconds = 0.34;
  Noise noise(static_cast<std::uint32_t>(start * 1000.0) + 5);
  Biquad low = Biquad::lowPass(2600.0, 0.7, track.rate);
  Biquad high = Biquad::highPass(900.0, 0.7, track.rate);
  const Curve stroke({{0.0, 0.0}, {0.035, 1.0}, {0.12, 0.35}, {0.2, 0.25}, {seconds, 0.0}});
  const std::size_t count = track.indexOf(seconds);
  for (std::size_t i = 0; i < count; ++i) {
    const double at = static_cast<double>(i) / track.rate;
    track.add(track.indexOf(start) + i, level * stroke(at) * high(low(noise.next())));
  }
}

}  // namespace blues
