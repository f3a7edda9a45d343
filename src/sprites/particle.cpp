// Moves particles.
#include "sprites/particle.h"

#include "sprites/moveRestriction.h"

namespace {

// Deliberate: restrictions are looked at on every tenth move only. Thousands of particles move in every
// frame, and nobody sees a star that turns or wraps a few pixels late; a fast particle may overshoot by ten
// moves of travel. Checking more often would change where everything in the sky stands.
constexpr int movesBetweenRestrictions = 10;

}  // namespace

bool TorvParticle::move(float elapsedSec) {
  if (elapsedSec == 0.0F || (speedX == 0.0F && speedY == 0.0F)) {
    return false;
  }
  left += speedX * elapsedSec;
  top += speedY * elapsedSec;
  if (++m_movesSinceRestricted >= movesBetweenRestrictions) {
    m_movesSinceRestricted = 0;
    for (TorvMoveRestriction* restriction : m_restrictions) {
      restriction->apply(this);
    }
  }
  return true;
}
