// Lays the rays of the young craters over the moon.
#include "moonRays.h"

#include "latticeNoise.h"

namespace {

PlanePoint towards(double azimuth) {
  return {sineOf(azimuth), cosineOf(azimuth)};
}

// A bell around 0 that is 1 there and next to nothing beyond 2.5.
double bell(double x) {
  const double t = 1.0 / (1.0 + 0.55 * x * x);
  return t * t * t;
}

}  // namespace

MoonRays::MoonRays() {
  int seed = 5000;
  for (const RaySystem& table : raySystems()) {
    double farthest = table.reach;
    std::vector<Streak> streaks;
    for (const RayStreak& streak : table.streaks) {
      farthest = std::max(farthest, streak.length);
      streaks.push_back({towards(streak.azimuth), streak.length, streak.width, streak.strength});
    }
    const PlanePoint bareSide = table.bareAzimuth < 0.0 ? PlanePoint{} : towards(table.bareAzimuth);
    m_systems.push_back({TangentPlane(table.middle), cosineOf(farthest),
                         table.diameter / 2.0 / kilometersPerDegree, table.reach, table.strength,
                         table.fineness, bareSide, seed, streaks});
    seed += 10;
  }
}

// Fine rays: noise around the crater that hardly changes away from it.
double MoonRays::haloOf(const System& system, const PlanePoint& at, double distance, const Vec3& point) {
  if (distance <= 0.0) {
    return 1.0;
  }
  // What was thrown out reached farther here than there.
  const Vec3 side = {at.east / distance, at.north / distance, 0.0};
  const double reach =
      system.reach *
      std::clamp(0.8 + 0.75 * solidNoise(side * 1.7 + Vec3{0.5, 0.5, 0.5}, system.seed + 8), 0.4, 1.0);
  if (distance >= reach) {
    return 0.0;
  }
  const Vec3 around = side * system.fineness + Vec3{0.0, 0.0, distance / reach * 1.3};
  const double fine = solidNoise(around, system.seed) + 0.6 * solidNoise(around * 2.1, system.seed + 1) +
                      0.4 * solidNoise(around * 4.3, system.seed + 2);
  const double away = 1.0 - distance / reach;
  const double patchy = fractalNoise(point, 15.0, 4, 0.7, system.seed + 7);
  // Near the crater everything is covered, far from it only the rays are, and those in patches.
  const double dust = away * away * (0.95 + 0.8 * patchy + 0.9 * fine);
  const double splashes = 0.45 * away * std::max(fine + 0.5 * patchy, 0.0);
  const double covered = std::clamp(dust + splashes, 0.0, 1.0);
  // A dark collar where the ground was melted, close to the rim.
  const double collar =
      system.radius > 1.0 ? smoothStep(system.radius * 1.1, system.radius * 2.0, distance) : 1.0;
  return covered * (0.35 + 0.65 * collar);
}

double MoonRays::streaksOf(const System& system, const PlanePoint& at, double distance, const Vec3& point) {
  double sum = 0.0;
  int number = 0;
  for (const Streak& streak : system.streaks) {
    // Few rays point to the very middle of their crater.
    const double miss = 0.7 * system.radius * (2.0 * hashUnit(number++, 6, system.seed) - 1.0);
    const double along = at.east * streak.direction.east + at.north * streak.direction.north;
    if (along <= system.radius || along >= streak.length) {
      continue;
    }
    const double part = along / streak.length;
    const double wobble = 0.8 * streak.width * fractalNoise(point, 9.0, 2, 0.5, system.seed + 3);
    const double aside = at.east * streak.direction.north - at.north * streak.direction.east + wobble + miss;
    const double width = streak.width * (0.55 + 0.75 * part);
    // Rays are rows of splashes: patchy, ever weaker, and frayed at their end.
    const double patches =
        std::clamp(0.66 + 1.5 * fractalNoise(point, 14.0, 3, 0.6, system.seed + 5), 0.0, 1.0);
    const double fading = (1.0 - part) * (1.0 - part) + 1.2 * part * (1.0 - part);
    sum += streak.strength * patches * fading * bell(aside / width);
  }
  return sum * smoothStep(0.8 * system.radius, 2.2 * system.radius, distance);
}

double MoonRays::brightnessAt(const Vec3& point) const {
  double dark = 1.0;
  for (const System& system : m_systems) {
    if (system.plane.cosineTo(point) < system.cosineOfReach) {
      continue;
    }
    const PlanePoint at = system.plane.pointOf(point);
    const double distance = std::sqrt(at.east * at.east + at.north * at.north);
    double light =
        system.strength * haloOf(system, at, distance, point) + streaksOf(system, at, distance, point);
    const double bare = at.east * system.bareSide.east + at.north * system.bareSide.north;
    light *= 1.0 - smoothStep(0.35, 0.75, distance > 0.0 ? bare / distance : 0.0);
    dark *= 1.0 - std::min(light, 1.0);
  }
  return 1.0 - dark;
}
