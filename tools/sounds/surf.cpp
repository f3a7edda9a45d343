// Waves that break on a flat beach: noise in five bands that come and go as water does.
#include <array>
#include <cmath>
#include <cstdint>

#include "sounds/curve.h"
#include "sounds/filter.h"
#include "sounds/sounds.h"
#include "sounds/waveFile.h"

namespace {

constexpr int rate = 11025;

// One part of the wave's sound: where it lies and how loud it is over the loop. The lines end at the level at
// which they begin, since the loop goes on.
struct Band {
  double low;   // hertz
  double high;  // hertz
  std::uint32_t seed;
  Curve level;
  Curve density;  // (0, 1]: 1 is a steady rush; the smaller, the rarer and larger the bubbles that burst
};

// Single grains of noise, as loud together whatever their density.
void fillWithGrains(Track& track, std::uint32_t seed, const Curve& density) {
  Noise noise(seed);
  for (std::size_t i = 0; i < track.samples.size(); ++i) {
    const double dense = density(static_cast<double>(i) / rate);
    const double chosen = 0.5 + 0.5 * noise.next();  // [0, 1)
    const double grain = noise.next();
    track.samples[i] = chosen < dense ? grain / std::sqrt(dense) : 0.0;
  }
}

// A slow, uneven swelling around 1, as foam has it; it is the same at both ends of the loop.
Track unevenness(const Track& like, std::uint32_t seed) {
  Track track = like.sibling();
  fillWithNoise(track, seed);
  process(track, Biquad::lowPass(3.0, 0.6, rate));
  double squares = 0.0;
  for (const double sample : track.samples) {
    squares += sample * sample;
  }
  const double spread = 0.05 * static_cast<double>(track.samples.size()) / squares;
  for (double& sample : track.samples) {
    sample = 1.0 / (1.0 + spread * sample * sample);  // never below nothing, never above one
  }
  return track;
}

void addBand(Track& track, const Band& band) {
  Track noise = track.sibling();
  fillWithGrains(noise, band.seed, band.density);
  process(noise, Biquad::highPass(band.low, 0.7, rate));
  process(noise, Biquad::lowPass(band.high, 0.7, rate));
  process(noise, Biquad::lowPass(band.high, 0.7, rate));
  const Track swelling = unevenness(track, band.seed + 100);
  for (std::size_t i = 0; i < noise.samples.size(); ++i) {
    noise.samples[i] *= band.level(static_cast<double>(i) / rate) * swelling.samples[i];
  }
  track.mix(noise, 1.0);
}

}  // namespace

Track oceanWaves() {
  Track track(rate, wholeBlocks(6.1, rate), Ending::Loops);
  const double end = static_cast<double>(track.samples.size()) / rate;
  const Curve water({{0, 1.0}});
  const Curve spray({{0, 0.12}, {1.5, 0.2}, {2.5, 0.7}, {3.6, 0.3}, {4.9, 0.12}, {end, 0.12}});
  const Curve foam({{0, 0.05}, {1.6, 0.08}, {2.6, 0.45}, {3.8, 0.2}, {5.0, 0.05}, {end, 0.05}});
  // From the swell far out to the foam that sinks into the sand: the higher the band, the later it comes and
  // the quieter it is.
  const std::array<Band, 5> bands = {{
      {60, 220, 1, Curve({{0, 0.55}, {1.2, 1.6}, {2.0, 2.1}, {3.2, 1.1}, {4.6, 0.75}, {end, 0.55}}), water},
      {200, 550, 2,
       Curve({{0, 0.22}, {1.2, 0.60}, {2.2, 1.35}, {3.4, 0.55}, {4.5, 0.34}, {5.1, 0.36}, {end, 0.22}}),
       water},
      {500, 1200, 3,
       Curve({{0, 0.13}, {1.3, 0.26}, {2.3, 0.82}, {3.6, 0.36}, {4.6, 0.20}, {5.2, 0.24}, {end, 0.13}}),
       water},
      {1100, 2300, 4,
       Curve({{0, 0.08}, {1.5, 0.12}, {2.5, 0.40}, {3.8, 0.24}, {4.9, 0.13}, {5.4, 0.14}, {end, 0.08}}),
       spray},
      {2200, 3800, 5, Curve({{0, 0.035}, {1.7, 0.04}, {2.8, 0.15}, {4.0, 0.12}, {5.2, 0.06}, {end, 0.035}}),
       foam},
  }};
  for (const Band& band : bands) {
    addBand(track, band);
  }
  // Between two waves the sea nearly rests, so that it neither starts nor stops harshly where it is heard
  // once.
  const Curve lull({{0, 0.3}, {0.6, 1.0}, {end - 0.8, 1.0}, {end, 0.3}});
  for (std::size_t i = 0; i < track.samples.size(); ++i) {
    track.samples[i] *= lull(static_cast<double>(i) / rate);
  }
  return track;
}
