// Makes the two backgrounds of the sky: the starry tile and the blue gradient.
// Usage: make_backgrounds FOLDER
#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <string>

#include "indexedBitmap.h"
#include "latticeNoise.h"

namespace {

struct Color {
  double red;
  double green;
  double blue;
};

std::uint8_t toByte(double value) {
  return static_cast<std::uint8_t>(std::clamp(value + 0.5, 0.0, 255.0));
}

Rgb toRgb(const Color& color) {
  return {toByte(color.red), toByte(color.green), toByte(color.blue)};
}

Color mix(const Color& a, const Color& b, double t) {
  return {a.red + (b.red - a.red) * t, a.green + (b.green - a.green) * t, a.blue + (b.blue - a.blue) * t};
}

// --- the gradient
// -----------------------------------------------------------------------------------------------

struct Stop {
  double height;  // 0 at the top, 1 at the bottom
  Color color;
};

// Night at the zenith, a last blue above the horizon; dark enough there that the dim rims of stars do not
// show as specks.
constexpr std::array<Stop, 5> skyStops = {{{0.0, {2.0, 3.0, 11.0}},
                                           {0.35, {5.0, 9.0, 30.0}},
                                           {0.65, {9.0, 18.0, 48.0}},
                                           {0.88, {13.0, 26.0, 62.0}},
                                           {1.0, {17.0, 33.0, 74.0}}}};

Color skyAt(double height) {
  for (std::size_t i = 1; i < skyStops.size(); ++i) {
    if (height <= skyStops[i].height) {
      const auto& above = skyStops[i - 1];
      return mix(above.color, skyStops[i].color,
                 (height - above.height) / (skyStops[i].height - above.height));
    }
  }
  return skyStops.back().color;
}

IndexedBitmap makeGradient() {
  IndexedBitmap bitmap(1600, 900);
  // The palette is the gradient itself in 256 steps. A step changes a channel by at most one level, so the
  // eye has nothing to see in the dither between two neighbours.
  for (std::size_t i = 0; i < 256; ++i) {
    bitmap.palette[i] = toRgb(skyAt(static_cast<double>(i) / 255.0));
  }
  for (int y = 0; y < bitmap.height; ++y) {
    for (int x = 0; x < bitmap.width; ++x) {
      // The sum of two draws spreads each step over three rows of palette entries, which hides where a step
      // begins.
      const double spread = (hashUnit(x, y, 1) + hashUnit(x, y, 2) - 1.0) * 2.5;
      const double index = 255.0 * y / (bitmap.height - 1) + spread;
      bitmap.at(x, y) = toByte(index);
    }
  }
  return bitmap;
}

// --- the starry tile
// --------------------------------------------------------------------------------------------

constexpr int tileWidth = 1280;
constexpr int tileHeight = 1024;
constexpr int skySteps = 36;   // palette entries of the sky between the stars
constexpr int starSteps = 44;  // palette entries of each colour of star
constexpr int starColors = 5;

constexpr Color darkestSky = {2.0, 3.0, 10.0};
constexpr Color brightestSky = {9.0, 11.0, 25.0};
// White, blue-white, pale yellow, orange, and a rare red.
constexpr std::array<Color, starColors> starTints = {
    {{1.0, 1.0, 1.0}, {0.78, 0.88, 1.0}, {1.0, 0.95, 0.8}, {1.0, 0.84, 0.66}, {1.0, 0.72, 0.62}}};
constexpr double brightestStar = 150.0;  // levels; brighter ones would be recognised when they come again

std::size_t index(int x, int y) {
  const int wrappedX = (x + tileWidth) % tileWidth;
  const int wrappedY = (y + tileHeight) % tileHeight;
  return static_cast<std::size_t>(wrappedY) * tileWidth + static_cast<std::size_t>(wrappedX);
}

// A faint unevenness of the sky, in [0, 1], seamless: three sizes of noise over the tile.
double glowAt(int x, int y) {
  double sum = 0.0;
  double weight = 0.5;
  for (int cells = 4; cells <= 16; cells *= 2) {
    sum += weight * periodicNoise(static_cast<double>(x) * cells / tileWidth,
                                  static_cast<double>(y) * cells / tileHeight, cells, cells, cells);
    weight /= 2.0;
  }
  return std::clamp((sum / 0.875 - 0.25) * 1.6, 0.0, 1.0);
}

// Light of the stars at each pixel, in levels, and the colour of the star that gives most of it.
struct Starlight {
  std::vector<double> level = std::vector<double>(static_cast<std::size_t>(tileWidth) * tileHeight, 0.0);
  std::vector<int> tint = std::vector<int>(static_cast<std::size_t>(tileWidth) * tileHeight, 0);
};

void addStar(Starlight& light, double x, double y, double brightness, int tint) {
  constexpr int reach = 3;
  const int centerX = static_cast<int>(x);
  const int centerY = static_cast<int>(y);
  for (int dy = -reach; dy <= reach; ++dy) {
    for (int dx = -reach; dx <= reach; ++dx) {
      const double offsetX = centerX + dx + 0.5 - x;
      const double offsetY = centerY + dy + 0.5 - y;
      const double distance2 = offsetX * offsetX + offsetY * offsetY;
      // A Moffat profile, as a lens gives it: a point with a faint skirt.
      const double spread = 1.0 + distance2 / 0.55;
      const double level = brightness / (spread * spread * spread);
      const std::size_t at = index(centerX + dx, centerY + dy);
      if (level > light.level[at]) {
        light.tint[at] = tint;
      }
      light.level[at] += level;
    }
  }
}

int tintOf(double chance) {
  constexpr std::array<double, starColors> upTo = {0.34, 0.66, 0.84, 0.95, 1.0};
  return static_cast<int>(
      std::find_if(upTo.begin(), upTo.end(), [chance](double end) { return chance < end; }) - upTo.begin());
}

// One star in most cells of a coarse grid, shifted at random: even enough that no cluster betrays the
// repetition, uneven enough that no grid shows. Few are bright: the brightness falls with the fourth power of
// chance.
Starlight makeStars() {
  Starlight light;
  constexpr int cell = 32;
  for (int row = 0; row < tileHeight / cell; ++row) {
    for (int column = 0; column < tileWidth / cell; ++column) {
      const auto chance = [&](int what) { return hashUnit(column, row, 100 + what); };
      if (chance(0) < 0.42) {
        continue;
      }
      const double power = chance(3) * chance(3);
      const double brightness = 16.0 + (brightestStar - 16.0) * power * power;
      addStar(light, (column + 1.6 * chance(1)) * cell, (row + 1.6 * chance(2)) * cell, brightness,
              tintOf(chance(4)));
    }
  }
  return light;
}

Rgb starColor(int tint, int step) {
  const double level = brightestStar * 1.02 * (step + 1) / starSteps;
  const Color& color = starTints[static_cast<std::size_t>(tint)];
  return toRgb({darkestSky.red + level * color.red, darkestSky.green + level * color.green,
                darkestSky.blue + level * color.blue});
}

IndexedBitmap makeTile() {
  IndexedBitmap bitmap(tileWidth, tileHeight);
  for (int i = 0; i < skySteps; ++i) {
    bitmap.palette[static_cast<std::size_t>(i)] =
        toRgb(mix(darkestSky, brightestSky, static_cast<double>(i) / (skySteps - 1)));
  }
  for (int tint = 0; tint < starColors; ++tint) {
    for (int step = 0; step < starSteps; ++step) {
      bitmap.palette[static_cast<std::size_t>(skySteps + tint * starSteps + step)] = starColor(tint, step);
    }
  }
  const Starlight light = makeStars();
  for (int y = 0; y < tileHeight; ++y) {
    for (int x = 0; x < tileWidth; ++x) {
      const std::size_t at = index(x, y);
      const double glow = glowAt(x, y) * (skySteps - 1) + (hashUnit(x, y, 7) + hashUnit(x, y, 8) - 1.0) * 1.5;
      const int skyStep = std::clamp(static_cast<int>(glow + 0.5), 0, skySteps - 1);
      const int starStep = static_cast<int>(light.level[at] / (brightestStar * 1.02) * starSteps);
      bitmap.at(x, y) = starStep < 2 ? static_cast<std::uint8_t>(skyStep)
                                     : static_cast<std::uint8_t>(skySteps + light.tint[at] * starSteps +
                                                                 std::min(starStep, starSteps - 1));
    }
  }
  return bitmap;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_backgrounds FOLDER\n", stderr);
    return 1;
  }
  try {
    writeBitmap(makeGradient(), std::string(argv[1]) + "/background-blue-gradient.bmp");
    writeBitmap(makeTile(), std::string(argv[1]) + "/background-starry-tiled.bmp");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_backgrounds: %s\n", error.what());
    return 1;
  }
  return 0;
}
