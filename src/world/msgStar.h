// A star of the messages: it waits, flies in a straight line to its point, and stays or vanishes there.
#pragma once

#include "world/starWithPixels.h"

class cMsgStar : public cStarSpriteWithPixels {
 public:
  // As cStarSpriteWithPixels; named "msg star". It begins invisible.
  cMsgStar(float averageTwinkleDuration, float brightness, float amplitude, float averageRestDuration);
  ~cMsgStar() override = default;

  // Nothing while it is invisible: no flight, no twinkling.
  void update(float elapsedSec) override;
  void draw() override;

  // The next flight, counted from now: it begins and ends at these times (seconds; end > start), and the star
  // shows from now on.
  void schedule(float startMovingAt, float endMovingAt, bool showAfterArrival);

  bool isVisible = false;
  bool visibleAfterArrival = true;  // what isVisible becomes on arrival
  int targetX = 0;                  // window coordinates, pixels
  int targetY = 0;

  float startMovingAtTime() const { return m_startMovingAtTime; }  // seconds on clock()
  float endMovingAtTime() const { return m_endMovingAtTime; }      // seconds on clock()
  float clock() const { return m_clock; }                          // seconds since the flight was scheduled
  bool movingStarted() const { return m_movingStarted; }
  bool arrived() const { return m_arrived; }

 private:
  void takeOff();
  void arrive();

  float m_clock = 0.0F;
  float m_startMovingAtTime = 0.0F;
  float m_endMovingAtTime = 1.0F;
  bool m_movingStarted = false;
  bool m_arrived = false;
};
