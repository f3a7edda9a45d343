// Random fields.
#include "latticeNoise.h"

namespace {

int wrapped(int value, int period) {
  return ((value % period) + period) % period;
}

double smooth(double t) {
  return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}

double mix(double a, double b, double t) {
  return a + (b - a) * t;
}

int floorOf(double value) {
  const int truncated = static_cast<int>(value);
  return value < static_cast<double>(truncated) ? truncated - 1 : truncated;
}

}  // namespace

std::uint32_t hashOf(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
  std::uint32_t h = a * 0x9e3779b1U ^ (b + 0x7f4a7c15U) * 0x85ebca6bU ^ (c + 0x165667b1U) * 0xc2b2ae35U;
  h ^= h >> 16;
  h *= 0x7feb352dU;
  h ^= h >> 15;
  h *= 0x846ca68bU;
  return h ^ (h >> 16);
}

double hashUnit(int x, int y, int seed) {
  return hashOf(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y),
                static_cast<std::uint32_t>(seed)) /
         4294967296.0;
}

double grain(int x, int y, int periodX, int periodY, int seed) {
  const auto chance = [&](int dx, int dy) {
    return hashUnit(wrapped(x + dx, periodX), wrapped(y + dy, periodY), seed);
  };
  const double around = chance(-1, 0) + chance(1, 0) + chance(0, -1) + chance(0, 1);
  return chance(0, 0) - around / 4.0;
}

double periodicNoise(double x, double y, int periodX, int periodY, int seed) {
  const int cellX = floorOf(x);
  const int cellY = floorOf(y);
  // Each lattice point tilts the field by a slope of its own and is 0 itself, so the lattice does not show.
  const auto corner = [&](int dx, int dy) {
    const int latticeX = wrapped(cellX + dx, periodX);
    const int latticeY = wrapped(cellY + dy, periodY);
    const double slopeX = hashUnit(latticeX, latticeY, seed) * 2.0 - 1.0;
    const double slopeY = hashUnit(latticeX, latticeY, seed + 0x5bd1) * 2.0 - 1.0;
    return slopeX * (x - cellX - dx) + slopeY * (y - cellY - dy);
  };
  const double tx = smooth(x - cellX);
  const double ty = smooth(y - cellY);
  return mix(mix(corner(0, 0), corner(1, 0), tx), mix(corner(0, 1), corner(1, 1), tx), ty);
}
