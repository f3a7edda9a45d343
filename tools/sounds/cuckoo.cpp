// The cuckoo of a clock: two stopped pipes and the air that blows them.
#include <array>

#include "sounds/curve.h"
#include "sounds/filter.h"
#include "sounds/reverb.h"
#include "sounds/sounds.h"
#include "sounds/tones.h"

namespace {

constexpr int rate = 8000;

// A stopped wooden pipe: mostly its tone, of the overtones rather the odd ones.
constexpr std::array<Partial, 4> pipe = {
    {{1.0, 1.0, 0.0}, {2.0, 0.09, 0.0}, {3.0, 0.13, 0.0}, {5.0, 0.015, 0.0}}};

// Hertz: a falling third. Each pipe starts a little low, while its air comes.
void blow(Track& track, double start, double seconds, double frequency, double level) {
  addSungTone(track,
              {start, Curve({{0.0, frequency * 0.975}, {0.035, frequency}, {seconds, frequency * 0.996}}),
               Curve({{0.0, 0.0}, {0.028, level}, {seconds * 0.7, level * 0.85}, {seconds, 0.0}}), pipe});
  Noise noise(static_cast<unsigned>(frequency));
  Biquad band = Biquad::bandPass(frequency * 2.0, 2.0, rate);
  const Curve breath({{0.0, 0.0}, {0.012, 0.16 * level}, {0.05, 0.05 * level}, {seconds, 0.0}});
  for (std::size_t i = 0; i < track.indexOf(seconds); ++i) {
    track.add(track.indexOf(start) + i, breath(static_cast<double>(i) / rate) * band(noise.next()));
  }
}

}  // namespace

Track cuckoo() {
  Track track(rate, 3520, Ending::Silent);  // 0.44 seconds
  blow(track, 0.005, 0.135, 740.0, 0.9);
  blow(track, 0.165, 0.225, 622.3, 1.0);
  addRoom(track, {0.6, 0.5, 0.5, 0.4});
  track.fade(0.004, 0.06);
  return track;
}
