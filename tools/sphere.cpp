// Trigonometry, projection and noise on the globe.
#include "sphere.h"

#include "latticeNoise.h"

namespace {

// The sine by its series; the angle in radians, within a right angle either way.
double sineSeries(double angle) {
  double term = angle;
  double sum = angle;
  for (int i = 1; i < 12; ++i) {
    term *= -angle * angle / ((2.0 * i) * (2.0 * i + 1.0));
    sum += term;
  }
  return sum;
}

double mix(double a, double b, double t) {
  return a + (b - a) * t;
}

double smooth(double t) {
  return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}

struct Cell {
  int index;
  double offset;  // within the cell, [0, 1)
};

Cell cellOf(double value) {
  const double floor = std::floor(value);
  return {static_cast<int>(floor), value - floor};
}

}  // namespace

double sineOf(double degrees) {
  double folded = degrees - 360.0 * std::floor(degrees / 360.0 + 0.5);  // [-180, 180)
  if (folded > 90.0) {
    folded = 180.0 - folded;
  } else if (folded < -90.0) {
    folded = -180.0 - folded;
  }
  return sineSeries(folded / degreesPerRadian);
}

double cosineOf(double degrees) {
  return sineOf(degrees + 90.0);
}

Vec3 onGlobe(const Place& place) {
  const double width = cosineOf(place.latitude);
  return {width * sineOf(place.longitude), sineOf(place.latitude), width * cosineOf(place.longitude)};
}

TangentPlane::TangentPlane(const Place& place)
    : m_center(onGlobe(place)),
      m_east{cosineOf(place.longitude), 0.0, -sineOf(place.longitude)},
      m_north{-sineOf(place.latitude) * sineOf(place.longitude), cosineOf(place.latitude),
              -sineOf(place.latitude) * cosineOf(place.longitude)} {}

PlanePoint TangentPlane::pointOf(const Vec3& point) const {
  const double scale = std::sqrt(2.0 / (1.0 + std::max(dot(m_center, point), -0.999))) * degreesPerRadian;
  return {dot(m_east, point) * scale, dot(m_north, point) * scale};
}

double solidNoise(const Vec3& at, int seed) {
  const Cell x = cellOf(at.x);
  const Cell y = cellOf(at.y);
  const Cell z = cellOf(at.z);
  const auto corner = [&](int dx, int dy, int dz) {
    const std::uint32_t hash =
        hashOf(static_cast<std::uint32_t>(x.index + dx), static_cast<std::uint32_t>(y.index + dy),
               static_cast<std::uint32_t>((z.index + dz) * 7919 + seed));
    // A slope of its own for each lattice point, from three pieces of the hash.
    const double slopeX = static_cast<double>(hash & 0x3ffU) / 511.5 - 1.0;
    const double slopeY = static_cast<double>((hash >> 10) & 0x3ffU) / 511.5 - 1.0;
    const double slopeZ = static_cast<double>((hash >> 20) & 0x3ffU) / 511.5 - 1.0;
    return slopeX * (x.offset - dx) + slopeY * (y.offset - dy) + slopeZ * (z.offset - dz);
  };
  const double tx = smooth(x.offset);
  const double ty = smooth(y.offset);
  const double tz = smooth(z.offset);
  const auto edge = [&](int dy, int dz) { return mix(corner(0, dy, dz), corner(1, dy, dz), tx); };
  return mix(mix(edge(0, 0), edge(1, 0), ty), mix(edge(0, 1), edge(1, 1), ty), tz);
}

double fractalNoise(const Vec3& point, double frequency, int octaves, double weight, int seed) {
  double sum = 0.0;
  double amplitude = 1.0;
  for (int i = 0; i < octaves; ++i) {
    sum += amplitude * solidNoise(point * frequency, seed + 101 * i);
    amplitude *= weight;
    frequency *= 2.0;
  }
  return sum;
}
