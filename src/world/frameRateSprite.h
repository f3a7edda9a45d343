// A label that shows how many frames a second are drawn.
#pragma once

#include <string>

#include "sprites/spriteText.h"
#include "support/timeCounter.h"

// Measures by the program's clock, over a hundred updates at a time.
class cFrameRateSprite : public TorvSpriteText {
 public:
  static constexpr int framesPerMeasurement = 100;

  // The stopwatch starts.
  cFrameRateSprite();

  // Moves as a particle, and counts a frame; seconds.
  void update(float elapsedSec) override;

  // What was measured last, in whole frames a second; 0 before.
  int framesPerSecond() const { return m_framesPerSecond; }
  // Stands at the text's end from the next measurement on.
  void setExtraText(const std::string& text) { m_extraText = text; }

 private:
  void measure();

  xplTimeCounter m_stopwatch;
  int m_frames = 0;  // since the last measurement
  int m_framesPerSecond = 0;
  std::string m_extraText;
};
