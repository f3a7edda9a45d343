// Birds in the evening: a blackbird that sings, another that answers far away, and a dove.
#include <array>
#include <span>
#include <vector>

#include "sounds/curve.h"
#include "sounds/exactMath.h"
#include "sounds/filter.h"
#include "sounds/reverb.h"
#include "sounds/sounds.h"
#include "sounds/tones.h"

namespace {

constexpr int rate = 8000;

// One whistle: it begins at one pitch, passes a second and ends at a third.
struct Syllable {
  double start;    // seconds from the start of the phrase
  double seconds;  // how long it lasts
  double from;     // hertz
  double over;     // hertz, in the middle
  double to;       // hertz
  double level;    // amplitude
};

// A flute nearly without overtones.
constexpr std::array<Partial, 2> whistle = {{{1.0, 1.0, 0.0}, {2.0, 0.06, 0.0}}};
// A dove's hollow voice.
constexpr std::array<Partial, 3> hollow = {{{1.0, 1.0, 0.0}, {2.0, 0.16, 0.0}, {3.0, 0.05, 0.0}}};

// The blackbird never sings the same line twice in a row: four phrases, each with a soft flourish at its
// end.
constexpr std::array<Syllable, 7> first = {{{0.00, 0.24, 1750, 1820, 1780, 0.80},
                                            {0.30, 0.15, 2050, 2280, 2200, 0.85},
                                            {0.50, 0.34, 1950, 1880, 1600, 1.00},
                                            {0.93, 0.12, 2250, 2450, 2150, 0.70},
                                            {1.09, 0.26, 2050, 1960, 2020, 0.85},
                                            {1.42, 0.07, 2900, 3150, 2800, 0.22},
                                            {1.52, 0.08, 3050, 2800, 2650, 0.18}}};
constexpr std::array<Syllable, 6> second = {{{0.00, 0.18, 2350, 2150, 2000, 0.75},
                                             {0.25, 0.36, 1620, 1680, 1880, 1.00},
                                             {0.70, 0.16, 2120, 2120, 1900, 0.80},
                                             {0.92, 0.28, 1700, 1780, 1720, 0.90},
                                             {1.28, 0.06, 2700, 3000, 2750, 0.24},
                                             {1.37, 0.09, 2900, 2700, 2500, 0.18}}};
constexpr std::array<Syllable, 8> third = {{{0.00, 0.14, 1820, 1980, 1930, 0.75},
                                            {0.20, 0.14, 1820, 1980, 1930, 0.80},
                                            {0.42, 0.40, 2300, 2220, 1750, 1.00},
                                            {0.92, 0.20, 1640, 1600, 1660, 0.85},
                                            {1.20, 0.22, 1980, 2120, 2080, 0.80},
                                            {1.50, 0.06, 2850, 3100, 2900, 0.20},
                                            {1.59, 0.06, 2850, 3100, 2900, 0.20},
                                            {1.68, 0.08, 3000, 2700, 2500, 0.15}}};
// It begins like the first, goes on like the second and ends in a trill.
constexpr std::array<Syllable, 7> coda = {{{0.00, 0.22, 1750, 1820, 1780, 0.75},
                                           {0.29, 0.17, 2120, 2180, 1960, 0.80},
                                           {0.54, 0.38, 1700, 1790, 1720, 1.00},
                                           {1.02, 0.05, 2750, 2950, 2700, 0.24},
                                           {1.10, 0.05, 2800, 3000, 2750, 0.22},
                                           {1.18, 0.05, 2850, 3050, 2800, 0.19},
                                           {1.26, 0.09, 2900, 2700, 2450, 0.15}}};
// A small bird in the hedge, two notes again and again.
constexpr std::array<Syllable, 6> hedge = {{{0.00, 0.11, 3120, 3080, 3040, 0.8},
                                            {0.19, 0.13, 2620, 2600, 2570, 1.0},
                                            {0.42, 0.11, 3120, 3080, 3040, 0.9},
                                            {0.61, 0.13, 2620, 2600, 2570, 1.0},
                                            {0.84, 0.11, 3120, 3080, 3040, 0.7},
                                            {1.03, 0.13, 2620, 2600, 2570, 0.8}}};
constexpr std::array<Syllable, 3> dove = {
    {{0.00, 0.30, 430, 462, 450, 0.7}, {0.46, 0.62, 452, 490, 462, 1.0}, {1.24, 0.46, 448, 455, 432, 0.7}}};

// How a phrase is sung this time: no bird sings it twice in the same way.
struct Singing {
  double start;  // seconds
  double level;  // amplitude
  double pitch;  // factor
  double pace;   // factor for the seconds; above 1 is slower
};

void sing(Track& track, const Singing& singing, std::span<const Syllable> phrase,
          std::span<const Partial> voice) {
  const double pitch = singing.pitch;
  for (const Syllable& syllable : phrase) {
    const double start = singing.start + singing.pace * syllable.start;
    const double end = singing.pace * syllable.seconds;
    const double loudness = singing.level * syllable.level;
    const Curve line(
        {{0.0, pitch * syllable.from}, {end * 0.5, pitch * syllable.over}, {end, pitch * syllable.to}});
    // A throat is no flute: it trembles, the more the longer it holds a note.
    const auto trembling = [&line](double at) {
      return line(at) * (1.0 + 0.03 * at * sineOfTurns(19.0 * at));
    };
    const Curve loud({{0.0, 0.0}, {end * 0.35, loudness}, {end * 0.6, loudness * 0.9}, {end, 0.0}});
    addSungTone(track, {start, trembling, loud, voice});
  }
}

// Air in the leaves, hardly to be heard.
void addBreeze(Track& track) {
  Track air = track.sibling();
  fillWithNoise(air, 77);
  process(air, Biquad::lowPass(500.0, 0.6, rate));
  process(air, Biquad::highPass(90.0, 0.6, rate));
  const double end = static_cast<double>(track.samples.size()) / rate;
  const Curve level({{0.0, 0.7}, {3.0, 1.0}, {7.0, 0.6}, {11.5, 1.0}, {15.0, 0.55}, {end, 0.7}});
  for (std::size_t i = 0; i < air.samples.size(); ++i) {
    track.samples[i] += 0.07 * level(static_cast<double>(i) / rate) * air.samples[i];
  }
}

}  // namespace

Track birds() {
  Track track(rate, 142400, Ending::Loops);  // 17.8 seconds
  Track far = track.sibling();
  sing(track, {0.9, 0.80, 1.0, 1.0}, first, whistle);
  sing(track, {5.3, 0.75, 1.0, 1.0}, second, whistle);
  sing(track, {9.6, 0.80, 0.985, 1.03}, third, whistle);
  sing(track, {14.2, 0.65, 1.04, 0.93}, coda, whistle);
  // The other one has the deeper voice and takes its time.
  sing(far, {3.1, 0.34, 0.93, 1.05}, third, whistle);
  sing(far, {12.1, 0.36, 0.91, 1.08}, first, whistle);
  sing(far, {7.6, 0.24, 1.0, 1.0}, hedge, whistle);
  sing(far, {16.1, 0.18, 1.015, 1.06}, std::span(hedge).first<4>(), whistle);
  sing(far, {6.2, 0.34, 1.0, 1.0}, dove, hollow);
  sing(far, {11.6, 0.30, 0.985, 1.04}, dove, hollow);
  addRoom(far, {2.6, 1.6, 0.55, 1.6});
  addRoom(track, {2.6, 1.4, 0.5, 0.7});
  track.mix(far, 1.0);
  addBreeze(track);
  return track;
}
