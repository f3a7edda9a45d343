// Flies the stars of the messages.
#include "world/msgStar.h"

#include "support/assertion.h"

cMsgStar::cMsgStar(float averageTwinkleDuration, float brightness, float amplitude, float averageRestDuration)
    : cStarSpriteWithPixels(averageTwinkleDuration, "msg star", brightness, amplitude, averageRestDuration) {}

void cMsgStar::schedule(float startMovingAt, float endMovingAt, bool showAfterArrival) {
  m_startMovingAtTime = startMovingAt;
  m_endMovingAtTime = endMovingAt;
  m_movingStarted = false;
  m_arrived = false;
  m_clock = 0.0F;
  isVisible = true;
  visibleAfterArrival = showAfterArrival;
}

void cMsgStar::update(float elapsedSec) {
  if (!isVisible) {
    return;
  }
  m_clock += elapsedSec;
  if (!m_movingStarted && m_clock > m_startMovingAtTime) {
    takeOff();
  }
  if (!m_arrived && m_clock >= m_endMovingAtTime) {
    arrive();
  }
  cStarSpriteWithPixels::update(elapsedSec);
}

void cMsgStar::takeOff() {
  xplAssert(m_endMovingAtTime > m_startMovingAtTime, "#2351: cMsgStar End-Start move time", "cMsgStar");
  const float duration = m_endMovingAtTime - m_startMovingAtTime;
  speedX = (static_cast<float>(targetX) - x) / duration;
  speedY = (static_cast<float>(targetY) - y) / duration;
  m_movingStarted = true;
}

void cMsgStar::arrive() {
  speedX = 0.0F;
  speedY = 0.0F;
  x = static_cast<float>(targetX);
  y = static_cast<float>(targetY);
  m_arrived = true;
  isVisible = visibleAfterArrival;
}

void cMsgStar::draw() {
  if (isVisible) {
    cStarSpriteWithPixels::draw();
  }
}
