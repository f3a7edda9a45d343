// A line of text that fades in, holds and fades out.
#pragma once

#include "sprites/spriteText.h"

class cSpriteTextDimming : public TorvSpriteText {
 public:
  // The values of state().
  enum State : int { notStarted = 0, fadingIn = 1, holding = 2, fadingOut = 3, done = 4 };

  explicit cSpriteTextDimming(const char* name) : TorvSpriteText(name) {}

  // Takes the style, and its text colour as the one at full brightness.
  void setStyle(const TorvTextStyle& newStyle);
  // One frame; seconds.
  void update(float elapsedSec) override;
  // Begins to fade in at the place (pixels). It holds for 4 s and 80 ms for each character, at least for
  // minHoldMs.
  virtual void start(float startX, float startY, int minHoldMs);
  // Begins to fade out from the present brightness.
  virtual void fadeOut();

  int state() const { return m_state; }
  int brightness() const { return m_brightness; }  // percent, [0, 100]
  int holdTime() const { return m_holdTime; }      // milliseconds
  int timer() const { return m_timer; }            // milliseconds in the present state
  xplColor fullColor() const { return m_fullColor; }

 private:
  void fadeIn();
  void fadeFurtherOut();
  void applyBrightness();

  int m_state = notStarted;
  int m_brightness = 0;
  int m_holdTime = 0;
  int m_timer = 0;
  xplColor m_fullColor{0, 0, 0};
};
