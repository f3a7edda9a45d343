// Draws the starry tile.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "backgrounds.h"
#include "latticeNoise.h"
#include "skyColor.h"

namespace {

constexpr int tileWidth = 1152;
constexpr int tileHeight = 864;

// The sky between the stars: its brightness in steps, each in a few hues from teal to violet.
constexpr int skySteps = 14;
constexpr int skyHues = 4;
constexpr int skyEntries = skySteps * skyHues;
constexpr SkyColor darkestSky = {3.0, 4.0, 12.0};
constexpr SkyColor brightestTeal = {8.0, 14.0, 26.0};
constexpr SkyColor brightestViolet = {13.0, 10.0, 27.0};
constexpr SkyColor meanSky = {6.0, 7.0, 18.0};

// White, blue-white, blue, pale yellow, orange, and a rare red.
constexpr int starColors = 6;
constexpr int starSteps = (256 - skyEntries) / starColors;
constexpr std::array<SkyColor, starColors> starTints = {{{0.96, 0.97, 1.0},
                                                         {0.80, 0.89, 1.0},
                                                         {0.62, 0.78, 1.0},
                                                         {1.0, 0.92, 0.70},
                                                         {1.0, 0.78, 0.52},
                                                         {1.0, 0.62, 0.48}}};
constexpr std::array<double, starColors> tintsUpTo = {0.30, 0.56, 0.70, 0.86, 0.96, 1.0};
constexpr double faintestStar = 30.0;    // levels above the sky
constexpr double brightestStar = 200.0;  // brighter ones would be recognised when they come again

std::size_t placeOf(int x, int y) {
  const int wrappedX = (x + tileWidth) % tileWidth;
  const int wrappedY = (y + tileHeight) % tileHeight;
  return static_cast<std::size_t>(wrappedY) * tileWidth + static_cast<std::size_t>(wrappedX);
}

// A seamless field around 0 of noise from the given number of cells across the tile's shorter side upwards.
double cloudAt(int x, int y, int cells, int seed) {
  double sum = 0.0;
  double weight = 1.0;
  for (int octave = 0; octave < 4; ++octave) {
    const int cellsY = cells << octave;
    const int cellsX = cellsY * tileWidth / tileHeight;
    sum +=
        weight * periodicNoise(static_cast<double>(x) * cellsX / tileWidth,
                               static_cast<double>(y) * cellsY / tileHeight, cellsX, cellsY, seed + octave);
    weight *= 0.55;
  }
  return sum;
}

// Light of the stars at each pixel, in levels, and the colour of the star that gives most of it.
struct Starlight {
  std::vector<double> level = std::vector<double>(static_cast<std::size_t>(tileWidth) * tileHeight, 0.0);
  std::vector<double> most = std::vector<double>(static_cast<std::size_t>(tileWidth) * tileHeight, 0.0);
  std::vector<int> tint = std::vector<int>(static_cast<std::size_t>(tileWidth) * tileHeight, 0);
};

void addStar(Starlight& light, double x, double y, double brightness, int tint) {
  constexpr int reach = 4;
  const int centerX = static_cast<int>(x);
  const int centerY = static_cast<int>(y);
  // Brighter stars are drawn a little wider: the eye takes width for brightness.
  const double size = 0.5 + 0.5 * brightness / brightestStar;
  for (int dy = -reach; dy <= reach; ++dy) {
    for (int dx = -reach; dx <= reach; ++dx) {
      const double offsetX = centerX + dx + 0.5 - x;
      const double offsetY = centerY + dy + 0.5 - y;
      // A point with a faint skirt, as a lens gives it.
      const double spread = 1.0 + (offsetX * offsetX + offsetY * offsetY) / size;
      const double level = brightness / (spread * spread * spread);
      const std::size_t at = placeOf(centerX + dx, centerY + dy);
      light.level[at] += level;
      if (level > light.most[at]) {
        light.most[at] = level;
        light.tint[at] = tint;
      }
    }
  }
}

int tintOf(double chance) {
  return static_cast<int>(
      std::find_if(tintsUpTo.begin(), tintsUpTo.end(), [chance](double end) { return chance < end; }) -
      tintsUpTo.begin());
}

// One star in most cells of a coarse grid, shifted at random over its neighbours: even enough that no cluster
// betrays the repetition, uneven enough that no grid shows. Few are bright.
Starlight makeStars() {
  Starlight light;
  constexpr int cell = 24;
  for (int row = 0; row < tileHeight / cell; ++row) {
    for (int column = 0; column < tileWidth / cell; ++column) {
      const auto chance = [&](int what) { return hashUnit(column, row, 100 + what); };
      if (chance(0) < 0.36) {
        continue;
      }
      const double power = chance(3) * chance(3);
      const double brightness = faintestStar + (brightestStar - faintestStar) * power * power;
      addStar(light, (column + 2.0 * chance(1)) * cell, (row + 2.0 * chance(2)) * cell, brightness,
              tintOf(chance(4)));
    }
  }
  return light;
}

// The steps of starlight are finer where it is faint: a level more is seen there and not in a bright core.
double levelOfStep(int step) {
  const double part = (step + 1.0) / starSteps;
  return brightestStar * 1.1 * part * part;
}

int nearestStep(double level) {
  int step = 0;
  while (step < starSteps - 1 && levelOfStep(step + 1) - level < level - levelOfStep(step)) {
    ++step;
  }
  return step;
}

void fillPalette(IndexedBitmap& bitmap) {
  for (int hue = 0; hue < skyHues; ++hue) {
    const SkyColor brightest = mix(brightestTeal, brightestViolet, hue / (skyHues - 1.0));
    for (int step = 0; step < skySteps; ++step) {
      const int entry = hue * skySteps + step;
      bitmap.palette[static_cast<std::size_t>(entry)] =
          toRgb(mix(darkestSky, brightest, step / (skySteps - 1.0)));
    }
  }
  for (int tint = 0; tint < starColors; ++tint) {
    const SkyColor& color = starTints[static_cast<std::size_t>(tint)];
    for (int step = 0; step < starSteps; ++step) {
      const double level = levelOfStep(step);
      const int entry = skyEntries + tint * starSteps + step;
      bitmap.palette[static_cast<std::size_t>(entry)] =
          toRgb({meanSky.red + level * color.red, meanSky.green + level * color.green,
                 meanSky.blue + level * color.blue});
    }
  }
}

int skyEntryAt(int x, int y, double starlight) {
  const double glow = 0.42 + 0.32 * cloudAt(x, y, 6, 10);
  const double step = glow * (skySteps - 1) + 1.6 * grain(x, y, tileWidth, tileHeight, 7) + starlight * 0.5;
  const double hue = 1.5 + 2.0 * cloudAt(x, y, 6, 30) + 1.2 * grain(x, y, tileWidth, tileHeight, 8);
  return std::clamp(static_cast<int>(std::lround(hue)), 0, skyHues - 1) * skySteps +
         std::clamp(static_cast<int>(std::lround(step)), 0, skySteps - 1);
}

}  // namespace

IndexedBitmap makeStarryTile() {
  constexpr double leastStarlight = 3.0;  // below it only the sky grows brighter
  IndexedBitmap bitmap(tileWidth, tileHeight);
  fillPalette(bitmap);
  const Starlight light = makeStars();
  for (int y = 0; y < tileHeight; ++y) {
    for (int x = 0; x < tileWidth; ++x) {
      const std::size_t at = placeOf(x, y);
      const double level = light.level[at];
      bitmap.at(x, y) = static_cast<std::uint8_t>(
          level < leastStarlight ? skyEntryAt(x, y, level)
                                 : skyEntries + light.tint[at] * starSteps + nearestStep(level));
    }
  }
  return bitmap;
}
