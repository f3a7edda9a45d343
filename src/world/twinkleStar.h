// A star that rests at a dim brightness and flares up and down once in a while.
#pragma once

#include "sprites/sprite.h"

class cTwinkleStarSprite : public TorvSprite {
 public:
  // Durations in seconds, each varied at random; brightness and amplitude are clamped to [0, 1]. Draws three
  // random numbers: the pulse's length, the rest's, and where in its cycle the star begins.
  cTwinkleStarSprite(float averageTwinkleDuration, const char* name, float brightness, float amplitude,
                     float averageRestDuration);

  void update(float elapsedSec) override;
  // Stores the brightness clamped to [0, 1].
  virtual void setBrightness(float brightness);

  float brightness() const { return m_brightness; }
  float baseBrightness() const { return m_baseBrightness; }
  float twinkleAmplitude() const { return m_twinkleAmplitude; }
  float twinkleDuration() const { return m_twinkleDuration; }  // seconds
  float restDuration() const { return m_restDuration; }        // seconds
  // Seconds into the cycle, in [0, twinkleDuration + restDuration]; the pulse stands at the cycle's start.
  float phase() const { return m_phase; }
  void setPhase(float seconds) { m_phase = seconds; }

 protected:
  ~cTwinkleStarSprite() = default;
  void twinkle(float elapsedSec);

 private:
  float m_brightness;
  float m_baseBrightness;
  float m_twinkleAmplitude;
  float m_twinkleDuration;
  float m_restDuration;
  float m_phase;
};
