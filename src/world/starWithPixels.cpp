// Draws stars from the shared palette.
#include "world/starWithPixels.h"

#include <algorithm>
#include <memory>

#include "sprites/wholePixel.h"
#include "support/log.h"

namespace {

// Deliberate: these two entries end with a line break of their own, so that an empty line follows each in the
// log. Readers of logs find the palette's life by it; the other entries have none.
constexpr const char* paletteBegins = "First cStarSpriteWithPixels create. Will create cStarPalette\n";
constexpr const char* paletteEnds = "Last cStarSpriteWithPixels destroy. Destroyed cStarPalette\n";

int livingStars = 0;
std::unique_ptr<TstarImageBinder> palette;

std::uint8_t toChannel(float value) {
  return static_cast<std::uint8_t>(std::clamp(value, 0.0F, 255.0F));
}

// The pixel i rows and j columns from the middle: white, with a blue cast that is stronger off the axes.
xplColor starPixel(float brightness, int i, int j) {
  if (i + j >= 4) {
    return {0, 0, 0};
  }
  const bool isOffAxis = i != 0 && j != 0;
  float value = (brightness - 0.25F * static_cast<float>(i)) * 255.0F * 7.0F / static_cast<float>(i + j + 1);
  if (isOffAxis) {
    value = value * 0.5F / static_cast<float>(i + j);
  }
  const std::uint8_t c = toChannel(value);
  return {c, c, toChannel(static_cast<float>(c) * (isOffAxis ? 4.0F : 1.4F))};
}

}  // namespace

cStarSpriteWithPixels::cStarSpriteWithPixels(float averageTwinkleDuration, const char* name, float brightness,
                                             float amplitude, float averageRestDuration)
    : cTwinkleStarSprite(averageTwinkleDuration, name, brightness, amplitude, averageRestDuration),
      xplInstanceCounterPattern(livingStars) {
  if (livingStars == 1) {
    logInfo().add(paletteBegins);
    palette = std::make_unique<TstarImageBinder>(starPixels);
    logInfo().add("TstarImageBinder created");
  }
}

cStarSpriteWithPixels::~cStarSpriteWithPixels() {
  if (livingStars == 1) {
    palette.reset();
    logInfo().add(paletteEnds);
  }
}

void cStarSpriteWithPixels::draw() {
  if (palette != nullptr && renderWindow() != nullptr) {
    const int index = static_cast<int>(brightness() * 99.0F);
    palette->getImageOf(index).drawOnWindow(*renderWindow(), wholePixel(x), wholePixel(y));
  }
}

void cStarSpriteWithPixels::calcSize() {
  width = static_cast<float>(TstarImageBinder::imageSize);
  height = static_cast<float>(TstarImageBinder::imageSize);
  setSizeIsValid(true);
}

TstarImageBinder::Quadrant cStarSpriteWithPixels::starPixels(float brightness) {
  TstarImageBinder::Quadrant pixels;
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) {
      pixels[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)] = starPixel(brightness, i, j);
    }
  }
  return pixels;
}

void cStarSpriteWithPixels::makeStarPixels(float brightness, TstarImageBinder::Quadrant& out) const {
  out = starPixels(brightness);
}
