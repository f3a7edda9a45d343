// An airplane: a tiny grey dot that crosses the sky slowly and flashes a red light.
#pragma once

#include "sprites/sprite.h"

class cAirplane : public TorvSprite {
 public:
  static constexpr float averageSpeed = 20.0F;     // pixels per second; each flies at 80 to 120 % of it
  static constexpr float lightOnDuration = 0.2F;   // seconds
  static constexpr float lightOffDuration = 2.0F;  // seconds

  // Draws three random numbers: where in its cycle the light begins, the direction and the speed. The
  // direction lies within 45 degrees of the horizontal.
  cAirplane();

  // Without a window it draws nothing.
  void draw() override;
  // One pixel square.
  void calcSize() override;
  // Seconds. The first update with a window puts the airplane at a random place of it: two random numbers,
  // the column and the row.
  void update(float elapsedSec) override;
  virtual ~cAirplane() = default;

  // Seconds since the light was last off for good, in [0, lightOffDuration + lightOnDuration).
  float lightClock() const { return m_lightClock; }
  bool isLightOn() const { return m_lightOn; }
  bool isPositioned() const { return m_positioned; }

 private:
  void chooseSpeed();
  void runLight(float elapsedSec);

  float m_lightClock;
  bool m_lightOn = false;
  bool m_positioned = false;
};
