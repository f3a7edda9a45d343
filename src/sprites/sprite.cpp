// What all sprites share.
#include "sprites/sprite.h"

#include "support/log.h"
#include "support/random.h"

void TorvSprite::setRandomPosition(TorvPoint minPoint, TorvPoint maxPoint) {
  const float r1 = xplRandom::unit();
  y = minPoint.y + r1 * ((maxPoint.y - height) - minPoint.y);
  const float r2 = xplRandom::unit();
  x = minPoint.x + r2 * ((maxPoint.x - width) - minPoint.x);
}

void TorvSprite::setRenderWindow(xplWindow* window) {
  m_renderWindowPtr = window;
  m_sizeIsValid = false;
}

void TorvSprite::update(float elapsedSec) {
  move(elapsedSec);
}

void TorvSprite::enable() {
  if (--m_disabledCount < 0) {
    logError().addf(
        "#8662b: %s disabledCount < 0. enable() called more times than disable(). disabledCount:%i", m_name,
        m_disabledCount);
  }
}
