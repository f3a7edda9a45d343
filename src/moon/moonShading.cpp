// Computes the light on the moon.
#include "moon/moonShading.h"

#include <algorithm>
#include <cmath>

#include "graphics/image.h"
#include "sprites/wholePixel.h"

namespace {

// Deliberate: neither of the two is made with the true pi: this one is 180 / 3.1415, the other, a
// float, 3.0415. Together they place the edge between light and dark, which everybody has seen where it is;
// do not put the constant of the library here.
constexpr double negativeDegreesPerRadian = -57.29746936176985;
constexpr double pseudoPi = 3.0414999961853026;

constexpr double cosineLimit = 0.999999999999;  // keeps the limb's pixels inside what acos takes
constexpr float darkestBlue = 0.3F;

// Where the pixel lies between the two limbs as seen by the sun, in whole degrees.
int angleToTheSun(int dx, int dy, int radius, std::int32_t phase) {
  const float radiusSquared = static_cast<float>(radius) * static_cast<float>(radius);
  const float dySquared = static_cast<float>(dy) * static_cast<float>(dy);
  const double halfChord =
      std::sqrt(static_cast<double>(radiusSquared) + 0.01 - static_cast<double>(dySquared));
  const auto cosine = static_cast<float>(dx / halfChord);
  const double clamped = std::clamp(static_cast<double>(cosine), -cosineLimit, cosineLimit);
  const int longitude = static_cast<int>(std::acos(clamped) * negativeDegreesPerRadian);
  const std::int32_t turned = phase <= 180 ? phase : phase - 360;
  return -90 - longitude - turned;
}

float roundedRoot(float value) {
  return static_cast<float>(std::sqrt(static_cast<double>(value)));
}

// Deliberate: the lower half mirrors the upper one about height - y and not about height - 1 - y, so that row
// 0 mirrors to just below the picture, where nothing is drawn, and no row is darkened twice. The disc of the
// pictures stands so that this is its axis.
int mirroredRow(int y, float height) {
  return wholePixel(static_cast<double>(height)) - y;
}

}  // namespace

float moonPixelIllumination(int x, int y, float width, std::int32_t phase) {
  const int radius = wholePixel(static_cast<double>(width * 0.5F));
  const std::int64_t dx = std::int64_t{x} - radius;
  const std::int64_t dy = std::int64_t{y} - radius;
  // Each first on its own, so that no square leaves 64 bits; a pixel on the circle is inside.
  if (std::abs(dx) > radius || std::abs(dy) > radius || std::int64_t{radius} * radius < dx * dx + dy * dy) {
    return 0.0F;
  }
  const int angle = angleToTheSun(static_cast<int>(dx), static_cast<int>(dy), radius, phase);
  const auto light = static_cast<float>(std::cos(angle * pseudoPi / 180.0));
  // The fourth root brightens the lit side towards the limb and softens the edge of the light.
  return light < 0.0F ? 0.0F : roundedRoot(roundedRoot(light));
}

void shadeMoon(xplImage& image, float width, float height, std::int32_t phase) {
  for (int x = 0; static_cast<float>(x) < width; ++x) {
    for (int y = 0; static_cast<float>(y) <= height * 0.5F; ++y) {
      const float factor = moonPixelIllumination(x, y, width, phase);
      const float blueFactor = std::max(factor, darkestBlue);
      image.amplifyPixel(x, y, factor, factor, blueFactor);
      if (height * 0.5F > static_cast<float>(y)) {
        image.amplifyPixel(x, mirroredRow(y, height), factor, factor, blueFactor);
      }
    }
  }
}
