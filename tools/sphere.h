// Points on the moon's globe. Only operations that every machine rounds alike are used, so that pictures made
// from them are the same everywhere.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

// x to the moon's east (right in the picture), y to its north, z towards the Earth; on the globe the length
// is 1.
struct Vec3 {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

inline Vec3 operator+(const Vec3& a, const Vec3& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec3 operator*(const Vec3& a, double factor) {
  return {a.x * factor, a.y * factor, a.z * factor};
}
inline double dot(const Vec3& a, const Vec3& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec3 unit(const Vec3& a) {
  return a * (1.0 / std::sqrt(dot(a, a)));
}

constexpr double degreesPerRadian = 57.29577951308232;
constexpr double kilometersPerDegree = 30.323;  // along the moon's surface

double sineOf(double degrees);
double cosineOf(double degrees);

// North and east are positive; degrees.
struct Place {
  double latitude = 0.0;
  double longitude = 0.0;
};
Vec3 onGlobe(const Place& place);

// A point in the plane that touches the globe at some place: degrees to the east and to the north.
struct PlanePoint {
  double east = 0.0;
  double north = 0.0;
};

// The plane around one place into which the globe is unrolled, areas kept: near the place distances and
// angles hold.
class TangentPlane {
 public:
  explicit TangentPlane(const Place& place);
  PlanePoint pointOf(const Vec3& point) const;
  // The cosine of the angle between the place and a point: a quick test for what is near.
  double cosineTo(const Vec3& point) const { return dot(m_center, point); }

 private:
  Vec3 m_center;
  Vec3 m_east;
  Vec3 m_north;
};

// 0 up to the first edge, 1 from the second, smooth between.
inline double smoothStep(double from, double to, double value) {
  const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
  return t * t * (3.0 - 2.0 * t);
}

// Smooth noise around 0 within (-1, 1), one lattice cell a unit.
double solidNoise(const Vec3& at, int seed);

// A sum of octaves of noise around 0: each has twice the frequency of the one before and weight times its
// size.
double fractalNoise(const Vec3& point, double frequency, int octaves, double weight, int seed);
