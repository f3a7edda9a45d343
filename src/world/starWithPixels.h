// A twinkling star that draws the shared picture of its brightness.
#pragma once

#include "world/instanceCounter.h"
#include "world/starPalette.h"
#include "world/twinkleStar.h"

// The first one that lives makes the palette, the last one that goes destroys it. Frame thread only.
class cStarSpriteWithPixels : public cTwinkleStarSprite, public xplInstanceCounterPattern {
 public:
  // As cTwinkleStarSprite.
  cStarSpriteWithPixels(float averageTwinkleDuration, const char* name, float brightness, float amplitude,
                        float averageRestDuration);
  virtual ~cStarSpriteWithPixels();

  // Deliberate: no visibility count is asked here, for the director has left out what is not shown. Thousands
  // of stars are drawn in every frame, and a kind that vanishes decides so itself.
  void draw() override;
  void calcSize() override;
  // The pixels of a star of this brightness: its lower right quadrant.
  static TstarImageBinder::Quadrant starPixels(float brightness);
  virtual void makeStarPixels(float brightness, TstarImageBinder::Quadrant& out) const;
};
