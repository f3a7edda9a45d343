// Draws the icon by taking many samples of its shapes within each pixel.
#include "iconArt.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "skyColor.h"

namespace {

// All lengths are fractions of the icon's size, measured from its top-left corner.
struct Point {
  double x;
  double y;
};

struct Star {
  Point center;
  double reach;  // from the centre to a tip
  double waist;  // half the width at the centre
};

struct Design {
  double margin;  // around the sky
  double corner;  // radius of the sky's corners
  Point moon;
  double moonRadius;
  Point shadow;  // what is cut out of the moon to leave the crescent
  double shadowRadius;
  Star star;
  bool faintStars;
};

constexpr Design fullDesign = {
    0.03, 0.21, {0.455, 0.535}, 0.335, {0.585, 0.43}, 0.275, {{0.665, 0.365}, 0.175, 0.042}, true};
// Up to this size the small design is used: a bolder crescent and a star that is still a star in a few
// pixels.
constexpr int largestSmallSize = 32;
constexpr Design smallDesign = {
    0.0, 0.19, {0.45, 0.55}, 0.375, {0.60, 0.42}, 0.30, {{0.70, 0.32}, 0.225, 0.085}, false};

constexpr std::array<Star, 4> faintStars = {{{{0.20, 0.20}, 0.030, 0.010},
                                             {{0.84, 0.66}, 0.036, 0.011},
                                             {{0.40, 0.135}, 0.020, 0.008},
                                             {{0.74, 0.86}, 0.022, 0.008}}};

constexpr SkyColor zenith = {14.0, 20.0, 58.0};
constexpr SkyColor horizon = {52.0, 86.0, 168.0};
constexpr SkyColor moonTop = {255.0, 247.0, 218.0};
constexpr SkyColor moonBottom = {244.0, 205.0, 128.0};
constexpr SkyColor starWhite = {255.0, 255.0, 255.0};
constexpr SkyColor faintWhite = {196.0, 212.0, 248.0};

bool isInCircle(Point p, Point center, double radius) {
  const double dx = p.x - center.x;
  const double dy = p.y - center.y;
  return dx * dx + dy * dy < radius * radius;
}

// Four points: two narrow rhombs across each other.
bool isInStar(Point p, const Star& star) {
  const double dx = std::fabs(p.x - star.center.x);
  const double dy = std::fabs(p.y - star.center.y);
  return dx / star.reach + dy / star.waist < 1.0 || dx / star.waist + dy / star.reach < 1.0;
}

bool isInSky(Point p, const Design& design) {
  const double half = 0.5 - design.margin;
  const double dx = std::max(std::fabs(p.x - 0.5) - (half - design.corner), 0.0);
  const double dy = std::max(std::fabs(p.y - 0.5) - (half - design.corner), 0.0);
  return dx * dx + dy * dy < design.corner * design.corner;
}

SkyColor colorAt(Point p, const Design& design) {
  if (isInStar(p, design.star)) {
    return starWhite;
  }
  if (isInCircle(p, design.moon, design.moonRadius) && !isInCircle(p, design.shadow, design.shadowRadius)) {
    const double top = design.moon.y - design.moonRadius;
    return mix(moonTop, moonBottom, (p.y - top) / (2.0 * design.moonRadius));
  }
  const auto isIn = [p](const Star& star) { return isInStar(p, star); };
  if (design.faintStars && std::any_of(faintStars.begin(), faintStars.end(), isIn)) {
    return faintWhite;
  }
  return mix(zenith, horizon, p.y * p.y);
}

// One pixel: the mean of its samples. Light adds up as the square of a level (near enough to how displays
// show it), so levels are squared before and rooted after; otherwise bright shapes on the dark sky would look
// too thin.
Rgba pixelAt(int x, int y, int size, const Design& design) {
  constexpr int samples = 16;  // along each side
  SkyColor sum;
  int covered = 0;
  for (int i = 0; i < samples * samples; ++i) {
    const int column = i % samples;
    const int row = i / samples;
    const Point p = {(x + (column + 0.5) / samples) / size, (y + (row + 0.5) / samples) / size};
    if (isInSky(p, design)) {
      const SkyColor color = colorAt(p, design);
      sum.red += color.red * color.red;
      sum.green += color.green * color.green;
      sum.blue += color.blue * color.blue;
      ++covered;
    }
  }
  if (covered == 0) {
    return {0, 0, 0, 0};
  }
  const auto level = [covered](double squares) { return toByte(std::sqrt(squares / covered)); };
  return {level(sum.red), level(sum.green), level(sum.blue), toByte(255.0 * covered / (samples * samples))};
}

}  // namespace

RgbaPicture drawIcon(int size) {
  Design design = size <= largestSmallSize ? smallDesign : fullDesign;
  if (size <= largestSmallSize) {
    // In the middle of a pixel, so that the star's tips are sharp.
    Point& center = design.star.center;
    center = {(std::floor(center.x * size) + 0.5) / size, (std::floor(center.y * size) + 0.5) / size};
  }
  RgbaPicture picture(size, size);
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      picture.at(x, y) = pixelAt(x, y, size, design);
    }
  }
  return picture;
}
