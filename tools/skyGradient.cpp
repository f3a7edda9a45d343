// Draws the blue gradient.
#include <array>
#include <cstddef>

#include "backgrounds.h"
#include "latticeNoise.h"
#include "skyColor.h"

namespace {

constexpr int gradientWidth = 960;
constexpr int gradientHeight = 540;

// The colours from the zenith to the horizon, at equal steps. The last is dark enough that the dim, opaque
// rims of the stars' pictures do not show as specks.
constexpr std::array<SkyColor, 6> skyStops = {{{3.0, 4.0, 13.0},
                                               {4.0, 6.0, 22.0},
                                               {6.0, 11.0, 33.0},
                                               {9.0, 18.0, 46.0},
                                               {13.0, 26.0, 60.0},
                                               {18.0, 35.0, 75.0}}};
// A curve through the stops without a corner at any of them: a corner in brightness would be seen as a line.
double curve(double before, double from, double to, double after, double t) {
  const double slopeFrom = (to - before) / 2.0;
  const double slopeTo = (after - from) / 2.0;
  const double t2 = t * t;
  const double t3 = t2 * t;
  return from * (2.0 * t3 - 3.0 * t2 + 1.0) + slopeFrom * (t3 - 2.0 * t2 + t) + to * (3.0 * t2 - 2.0 * t3) +
         slopeTo * (t3 - t2);
}

// depth is 0 at the zenith, 1 at the horizon.
SkyColor skyAt(double depth) {
  const int last = static_cast<int>(skyStops.size()) - 1;
  const double place = std::clamp(depth, 0.0, 1.0) * last;
  const int index = std::min(static_cast<int>(place), last - 1);
  const double t = place - index;
  const auto stop = [last](int i) { return skyStops[static_cast<std::size_t>(std::clamp(i, 0, last))]; };
  const SkyColor a = stop(index - 1);
  const SkyColor b = stop(index);
  const SkyColor c = stop(index + 1);
  const SkyColor d = stop(index + 2);
  return {curve(a.red, b.red, c.red, d.red, t), curve(a.green, b.green, c.green, d.green, t),
          curve(a.blue, b.blue, c.blue, d.blue, t)};
}

// How deep in the gradient a point of the picture lies, both coordinates in [0, 1]: the light of the horizon
// swells a little left of the middle and sinks away towards the corners, as it does an hour after sunset.
double depthAt(double x, double y) {
  const double aside = (x - 0.4) / 0.6;
  const double swell = 0.045 - 0.11 * aside * aside;
  return y * (1.0 + swell * y);
}

}  // namespace

IndexedBitmap makeGradient() {
  IndexedBitmap bitmap(gradientWidth, gradientHeight);
  // The palette is the gradient itself in 256 steps. A step changes a channel by at most one level, so the
  // eye has nothing to see in the dither between neighbours.
  for (std::size_t i = 0; i < 256; ++i) {
    bitmap.palette[i] = toRgb(skyAt(static_cast<double>(i) / 255.0));
  }
  for (int y = 0; y < gradientHeight; ++y) {
    for (int x = 0; x < gradientWidth; ++x) {
      const double depth = depthAt((x + 0.5) / gradientWidth, (y + 0.5) / gradientHeight);
      // The grain reaches over as many entries as one level of red takes, which hides where a level begins.
      bitmap.at(x, y) = toByte(depth / 1.045 * 255.0 + 10.0 * grain(x, y, gradientWidth, gradientHeight, 1));
    }
  }
  return bitmap;
}
