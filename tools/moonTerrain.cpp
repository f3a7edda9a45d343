// Builds the moon's craters and mountains.
#include "moonTerrain.h"

#include "latticeNoise.h"

namespace {

constexpr double globeRadius = 1737.4;  // kilometres

double distanceBetween(const Vec3& a, const Vec3& b) {
  const Vec3 difference = a + b * -1.0;
  return std::sqrt(dot(difference, difference));
}

// 1 at 0, 0 from 1 on.
double hump(double t) {
  return 1.0 - smoothStep(0.0, 1.0, t < 0.0 ? -t : t);
}

// The height of a crater's ground, in its depth; t is the distance from its middle in its radii.
double profile(double t) {
  if (t < 1.0) {
    return std::max(-0.7, 1.35 * t * t - 1.05);
  }
  const double fall = 1.0 / (t * t);
  return 0.30 * fall * fall * hump(t - 1.0);
}

// A point that chance puts anywhere on the near side.
Vec3 chancePoint(int number, int seed) {
  const double north = 2.0 * hashUnit(number, 1, seed) - 1.0;
  const double east = 180.0 * hashUnit(number, 2, seed) - 90.0;
  const double width = std::sqrt(1.0 - north * north);
  return {width * sineOf(east), north, width * cosineOf(east)};
}

}  // namespace

MoonTerrain::MoonTerrain(int radius, const MoonSeas& seas) : m_radius(radius) {
  const auto count = static_cast<std::size_t>(side()) * static_cast<std::size_t>(side());
  m_height.assign(count, 0.0);
  m_pale.assign(count, 0.0);
  addUnnamed(seas);
  for (const Crater& crater : oldCraters()) {
    addNamed(crater);
  }
  for (const Crater& crater : youngCraters()) {
    addNamed(crater);
  }
  for (const Range& range : mountainRanges()) {
    addRange(range);
  }
}

bool MoonTerrain::pointAt(int x, int y, Vec3& point) const {
  point.x = (x + 0.5) / m_radius - 1.0;
  point.y = 1.0 - (y + 0.5) / m_radius;
  const double rest = 1.0 - point.x * point.x - point.y * point.y;
  point.z = std::sqrt(std::max(rest, 0.0));
  return rest >= 0.0;
}

double MoonTerrain::slopeAt(int x, int y) const {
  const auto heightAt = [this](int column, int row) {
    return m_height[indexOf(std::clamp(column, 0, side() - 1), std::clamp(row, 0, side() - 1))];
  };
  const double east = heightAt(x + 1, y) - heightAt(x - 1, y);
  const double south = heightAt(x, y + 1) - heightAt(x, y - 1);
  return (0.6 * east + 0.8 * south) * m_radius / 2.0;
}

template <class Paint>
void MoonTerrain::around(const Vec3& middle, double reach, Paint paint) {
  const auto pixel = [this](double place) {
    return std::clamp(static_cast<int>((place + 1.0) * m_radius), 0, side() - 1);
  };
  for (int y = pixel(-middle.y - reach); y <= pixel(-middle.y + reach); ++y) {
    for (int x = pixel(middle.x - reach); x <= pixel(middle.x + reach); ++x) {
      Vec3 point;
      if (pointAt(x, y, point)) {
        paint(indexOf(x, y), point);
      }
    }
  }
}

void MoonTerrain::add(const Shape& shape) {
  constexpr double reach = 2.6;  // radii of the crater
  around(shape.middle, reach * shape.radius, [&](std::size_t at, const Vec3& point) {
    // No crater is quite round.
    const double uneven = 1.0 + 0.10 * solidNoise(point * (2.2 / shape.radius), 900) +
                          0.06 * solidNoise(point * (6.0 / shape.radius), 901);
    const double t = distanceBetween(point, shape.middle) / shape.radius * uneven;
    if (t >= reach) {
      return;
    }
    // Old rims are gone in places.
    const double broken = std::clamp(0.7 + 2.4 * solidNoise(point * (1.6 / shape.radius), 902), 0.0, 1.4);
    m_height[at] += profile(t) * shape.depth * shape.radius;
    m_pale[at] += shape.rim * broken * hump((t - 0.92) / 0.34) +
                  shape.floor * (1.0 - smoothStep(0.55, 0.85, t)) +
                  shape.blanket * (1.0 - smoothStep(0.8, reach, t));
  });
}

void MoonTerrain::addNamed(const Crater& crater) {
  const double radius = crater.diameter / 2.0 / globeRadius;
  const Vec3 middle = onGlobe(crater.middle);
  switch (crater.kind) {
    case CraterKind::worn:
      add({middle, radius, 0.09, 0.045, -0.02, 0.0});
      break;
    case CraterKind::fresh:
      add({middle, radius, 0.16, 0.13, 0.02, 0.05});
      break;
    case CraterKind::bright:
      add({middle, radius, 0.16, 0.16, 0.16, 0.12});
      break;
  }
}

// The thousands that have no name here: many small, few large, few in the seas, which are younger.
void MoonTerrain::addUnnamed(const MoonSeas& seas) {
  constexpr int count = 9000;
  constexpr double smallest = 7.0;  // kilometres across
  constexpr double largest = 90.0;
  for (int i = 0; i < count; ++i) {
    const Vec3 middle = chancePoint(i, 700);
    const double flooded = seas.toneAt(middle).sea;
    if (hashUnit(i, 3, 700) < 0.90 * flooded) {
      continue;
    }
    // Four times as many have half the size.
    const double diameter = std::min(smallest / std::sqrt(1.0 - hashUnit(i, 4, 700)), largest);
    const double age = hashUnit(i, 5, 700);
    const double radius = diameter / 2.0 / globeRadius * (flooded > 0.5 ? 0.6 : 1.0);
    const double young = age * age * age * age;
    add({middle, radius, 0.06 + 0.10 * age, 0.01 + 0.06 * age * age, -0.03 + 0.13 * young,
         0.16 * young * young});
  }
}

void MoonTerrain::addRange(const Range& range) {
  for (std::size_t i = 0; i + 1 < range.crest.size(); ++i) {
    const Vec3 from = onGlobe(range.crest[i]);
    const Vec3 to = onGlobe(range.crest[i + 1]);
    const Vec3 along = to + from * -1.0;
    const double width = range.width / degreesPerRadian;
    const double length = std::sqrt(dot(along, along));
    const Vec3 middle = (from + to) * 0.5;
    around(middle, length / 2.0 + width, [&](std::size_t at, const Vec3& point) {
      const double part = std::clamp(dot(point + from * -1.0, along) / (length * length), 0.0, 1.0);
      const double t = distanceBetween(point, from + along * part) / width;
      const double peaks = 0.6 + 1.2 * fractalNoise(point, 40.0, 3, 0.6, 950);
      const double crest = hump(t) * std::max(peaks, 0.0);
      // Sections meet: the higher counts where both reach.
      m_pale[at] = std::max(m_pale[at], range.brightness * crest);
      m_height[at] = std::max(m_height[at], 0.004 * crest);
    });
  }
}
