// Smooth random fields.
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

double periodicNoise(double x, double y, int periodX, int periodY, int seed) {
  const int cellX = floorOf(x);
  const int cellY = floorOf(y);
  const auto corner = [&](int dx, int dy) {
    return hashUnit(wrapped(cellX + dx, periodX), wrapped(cellY + dy, periodY), seed);
  };
  const double tx = smooth(x - cellX);
  const double ty = smooth(y - cellY);
  return mix(mix(corner(0, 0), corner(1, 0), tx), mix(corner(0, 1), corner(1, 1), tx), ty);
}
