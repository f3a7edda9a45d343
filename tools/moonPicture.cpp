// Reduces the moon's map to a picture.
#include "moonPicture.h"

#include <algorithm>
#include <cmath>

namespace {

// Between the pixel at 0 and its neighbours at 1: a curve that keeps edges crisp. Nothing beyond 2.
double sharpKernel(double x) {
  const double t = std::fabs(x);
  if (t < 1.0) {
    return (1.5 * t - 2.5) * t * t + 1.0;
  }
  return t < 2.0 ? ((-0.5 * t + 2.5) * t - 4.0) * t + 2.0 : 0.0;
}

struct Reduced {
  SkyColor color;
  double coverage = 0.0;  // how much of the pixel is disc, 0 to 1
};

// The pixel whose middle lies (right, down) pixels from the disc's middle.
Reduced reduce(const MoonMap& map, double right, double down, double discRadius) {
  const double scale = map.radius() / discRadius;  // pixels of the map in one of the picture
  const double centerX = map.radius() + right * scale;
  const double centerY = map.radius() + down * scale;
  const auto first = [scale](double center) { return static_cast<int>(std::floor(center - 2.0 * scale)); };
  const auto last = [scale](double center) { return static_cast<int>(std::ceil(center + 2.0 * scale)); };
  Reduced result;
  double weights = 0.0;
  int inPixel = 0;
  int inDisc = 0;
  for (int y = first(centerY); y <= last(centerY); ++y) {
    for (int x = first(centerX); x <= last(centerX); ++x) {
      const double dx = (x + 0.5 - centerX) / scale;
      const double dy = (y + 0.5 - centerY) / scale;
      const double fromMiddleX = x + 0.5 - map.radius();
      const double fromMiddleY = y + 0.5 - map.radius();
      const bool isDisc = fromMiddleX * fromMiddleX + fromMiddleY * fromMiddleY <
                          static_cast<double>(map.radius()) * map.radius();
      if (std::fabs(dx) < 0.5 && std::fabs(dy) < 0.5) {
        ++inPixel;
        inDisc += isDisc ? 1 : 0;
      }
      if (!isDisc) {
        continue;
      }
      const double weight = sharpKernel(dx) * sharpKernel(dy);
      const SkyColor& color = map.at(x, y);
      weights += weight;
      result.color.red += weight * color.red;
      result.color.green += weight * color.green;
      result.color.blue += weight * color.blue;
    }
  }
  result.coverage = static_cast<double>(inDisc) / inPixel;
  if (inDisc > 0 && weights > 0.0) {
    result.color = {result.color.red / weights, result.color.green / weights, result.color.blue / weights};
  }
  return result;
}

}  // namespace

RgbaPicture drawMoon(const MoonMap& map, int size) {
  constexpr double leastCoverage = 0.3;  // less of the disc in a pixel is left to the sky
  constexpr SkyColor sky = {5.0, 8.0, 24.0};
  const int middle = size / 2;
  const double discRadius = middle - 0.5;
  RgbaPicture picture(size, size);
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const Reduced reduced = reduce(map, x - middle, y - middle, discRadius);
      if (reduced.coverage < leastCoverage) {
        continue;
      }
      const SkyColor color = mix(sky, reduced.color, reduced.coverage);
      picture.at(x, y) = {toByte(color.red), toByte(color.green), toByte(std::max(color.blue, 16.0)), 255};
    }
  }
  return picture;
}
