// A rooster, far enough away to be pleasant: a rough voice through a throat, over fields.
#include <array>
#include <cstdint>

#include "sounds/curve.h"
#include "sounds/exactMath.h"
#include "sounds/filter.h"
#include "sounds/reverb.h"
#include "sounds/sounds.h"
#include "sounds/tones.h"

namespace {

constexpr int rate = 11025;

// Pitch and loudness of the four syllables; the last one is long and falls.
const Curve& pitch() {
  static const Curve curve({{0.00, 430},
                            {0.08, 520},
                            {0.20, 500},  // cock
                            {0.26, 560},
                            {0.33, 640},
                            {0.44, 610},  // a
                            {0.52, 620},
                            {0.64, 780},
                            {0.84, 750},  // doodle
                            {0.94, 690},
                            {1.06, 770},
                            {1.40, 735},
                            {1.75, 600},
                            {2.05, 430}});  // doo
  return curve;
}

const Curve& loudness() {
  static const Curve curve({{0.00, 0.0},
                            {0.06, 0.55},
                            {0.16, 0.5},
                            {0.23, 0.03},
                            {0.30, 0.7},
                            {0.40, 0.6},
                            {0.48, 0.05},
                            {0.60, 0.9},
                            {0.80, 0.85},
                            {0.91, 0.25},
                            {1.06, 1.0},
                            {1.35, 0.8},
                            {1.70, 0.4},
                            {2.05, 0.0}});
  return curve;
}

// How open the beak is: 0 is "oo", 1 is "ah".
const Curve& openness() {
  static const Curve curve({{0.0, 0.5},
                            {0.1, 0.9},
                            {0.23, 0.3},
                            {0.32, 0.9},
                            {0.48, 0.3},
                            {0.62, 1.0},
                            {0.9, 0.35},
                            {1.08, 0.9},
                            {1.5, 0.6},
                            {2.05, 0.1}});
  return curve;
}

// What the throat lets through of a frequency in hertz: two resonances that rise as the beak opens.
double throatAt(double frequency, double open) {
  const auto resonance = [frequency](double middle, double width) {
    const double off = (frequency - middle) / width;
    return 1.0 / (1.0 + off * off);
  };
  return resonance(750.0 + 450.0 * open, 420.0) +
         (0.25 + 0.25 * open) * resonance(2100.0 + 300.0 * open, 500.0);
}

// A slow random wavering, about -1 to 1.
Track wavering(const Track& like, double frequency, std::uint32_t seed) {
  Track track = like.sibling();
  fillWithNoise(track, seed);
  process(track, Biquad::lowPass(frequency, 0.7, rate));
  track.normalize(0.0);
  return track;
}

}  // namespace

Track rooster() {
  Track track(rate, 26460, Ending::Silent);  // 2.4 seconds
  const Track unsteady = wavering(track, 9.0, 3);
  const Track rough = wavering(track, 70.0, 4);
  double phase = 0.0;  // turns
  for (std::size_t i = 0; i < track.indexOf(loudness().end()); ++i) {
    const double at = static_cast<double>(i) / rate;
    const double frequency = pitch()(at) * (1.0 + 0.012 * unsteady.samples[i] + 0.008 * rough.samples[i]);
    double sum = 0.0;
    for (int n = 1; n <= 8; ++n) {
      sum +=
          throatAt(frequency * n, openness()(at)) * keptAt(frequency * n, rate) * sineOfTurns(phase * n) / n;
    }
    track.add(i, loudness()(at) * (1.0 + 0.25 * rough.samples[i]) * sum);
    phase += frequency / rate;
  }
  process(track, Biquad::lowPass(2600.0, 0.6, rate));
  addRoom(track, {2.4, 1.1, 0.5, 0.8});
  track.fade(0.01, 0.25);
  return track;
}
