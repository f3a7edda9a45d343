// Puts the moon's ground together.
#include "moonMap.h"

#include <array>

namespace {

double mixed(double a, double b, double t) {
  return a + (b - a) * t;
}

// A soft patch where the ground is paler or darker than elsewhere.
struct Patch {
  Place middle;
  double radius;  // degrees
  double tone;    // added to the brightness at its middle
};

constexpr auto highlandPatches = std::to_array<Patch>({
    {{-46, -8}, 34, 0.025},                            // Tycho's dust
    {{-12, 16}, 9, 0.05},                              // around Descartes
    {{-47, -52}, 17, -0.085},                          // Schiller and Schickard
    {{-36, -38}, 11, -0.06},                           // south of Humorum
    {{-27, -33}, 8, -0.05},   {{-8, -14}, 10, -0.07},  // Fra Mauro to Guericke
    {{2, -4}, 9, -0.075},                              // around Medii
    {{-9, -2}, 9, -0.05},                              // Ptolemaeus
    {{12, 12}, 9, -0.055},                             // Vaporum to Tranquillitatis
    {{42, 32}, 15, -0.075},                            // Somniorum to Endymion
    {{33, 45}, 13, -0.045},   {{3, 66}, 13, -0.07},    // between Crisium and Smythii
    {{-12, 45}, 9, -0.06},                             // between Nectaris and Fecunditatis
    {{-8, 27}, 8, -0.05},     {{56, -25}, 12, -0.05}, {{-45, 80}, 20, -0.06}, {{-20, -60}, 13, -0.03},
    {{20, -78}, 14, 0.03},    {{30, 62}, 12, 0.03},   {{-30, 40}, 20, 0.02},
});

constexpr auto seaPatches = std::to_array<Patch>({
    {{27, 17}, 8, 0.045},                                                     // Serenitatis: pale within,
    {{18, 24}, 5, -0.05},                                                     // dark along its shore
    {{20, 28}, 4, -0.04},   {{19, 12}, 3.5, -0.04},  {{9, 24}, 9, -0.035},    // Tranquillitatis' blue west
    {{14, 37}, 7, 0.02},    {{3, 36}, 6, 0.025},     {{33, -24}, 9, -0.035},  // the young flows in Imbrium
    {{42, -8}, 9, 0.02},    {{29, -1}, 6, 0.05},     {{46, -52}, 11, -0.02},
    {{18, -62}, 11, -0.03}, {{-4, -50}, 9, -0.02},   {{12, -30}, 10, 0.055},  // dust of Copernicus and Kepler
    {{1, -22}, 9, 0.05},    {{27, -50}, 6, 0.05},                             // Aristarchus' plateau
    {{-15, 53}, 7, 0.04},   {{-24, -11}, 7, 0.035},                           // Tycho's dust on Nubium
    {{-19, -20}, 7, -0.02}, {{7.5, -59}, 2.2, 0.13},                          // Reiner Gamma
    {{-17, 35}, 4, 0.03},
});

template <class Patches>
double toneOf(const Vec3& point, const Patches& patches) {
  double tone = 0.0;
  for (const Patch& patch : patches) {
    const Vec3 away = point + onGlobe(patch.middle) * -1.0;
    tone += patch.tone *
            (1.0 - smoothStep(0.0, 1.5 * patch.radius / degreesPerRadian, std::sqrt(dot(away, away))));
  }
  return tone;
}

// The old crust: pale, mottled.
double highlandAt(const Vec3& point) {
  return 0.685 + 0.09 * fractalNoise(point, 2.3, 3, 0.6, 300) +
         0.135 * fractalNoise(point, 9.0, 6, 0.74, 320) + toneOf(point, highlandPatches);
}

// A sea is many flows of lava, each with a tone of its own and an edge, and dusty all over.
double seaAt(const Vec3& point, double albedo) {
  const double flows = fractalNoise(point, 5.0, 4, 0.62, 400);
  const double edged = smoothStep(-0.12, 0.12, flows) - 0.5;
  return albedo - 0.01 + 0.035 * edged + 0.05 * flows + 0.09 * fractalNoise(point, 20.0, 5, 0.72, 420) +
         toneOf(point, seaPatches);
}

// From the ground's brightness to the picture's, 0 to 1, as a photographer would expose it: the seas stay
// deep, the crust gleams, and the brightest ground keeps its shape.
double exposed(double ground) {
  constexpr double shoulder = 0.86;
  const double linear = std::max(0.445 + 1.31 * (ground - 0.46), 0.0);
  if (linear <= shoulder) {
    return linear;
  }
  const double above = (linear - shoulder) / (1.0 - shoulder);
  return shoulder + (1.0 - shoulder) * above / (0.85 + above);
}

}  // namespace

MoonMap::MoonMap(int radius) : m_radius(radius) {
  const MoonTerrain terrain(radius, m_seas);
  m_colors.reserve(static_cast<std::size_t>(terrain.side()) * static_cast<std::size_t>(terrain.side()));
  for (int y = 0; y < terrain.side(); ++y) {
    for (int x = 0; x < terrain.side(); ++x) {
      m_colors.push_back(colorAt(terrain, x, y));
    }
  }
}

SkyColor MoonMap::colorAt(const MoonTerrain& terrain, int x, int y) const {
  Vec3 point;
  if (!terrain.pointAt(x, y, point)) {
    return {};
  }
  const SeaTone sea = m_seas.toneAt(point);
  double ground = mixed(highlandAt(point), seaAt(point, sea.albedo), sea.sea);
  ground += terrain.paleAt(x, y) * mixed(1.0, 0.75, sea.sea);
  ground += 0.9 * m_rays.brightnessAt(point) * (0.98 - ground);
  // The sun stands behind the observer: relief hardly shows, a little more of it towards the rim.
  ground *= 1.0 + std::clamp(0.35 * terrain.slopeAt(x, y), -0.14, 0.14);
  const double level = 255.0 * exposed(ground);
  // Warm grey; the lava is a trace bluer than the crust.
  return {level, level * mixed(0.968, 0.982, sea.sea), level * mixed(0.91, 0.955, sea.sea)};
}
