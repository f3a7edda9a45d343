// Applies move restrictions.
#include "sprites/moveRestriction.h"

#include "sprites/wholePixel.h"
#include "support/assertion.h"

namespace {

constexpr const char* sourceName = "TorvMoveRestrictions";

}  // namespace

bool TorvMoveRestriction_InsideRect::canApply(const TorvParticle* particle) const {
  xplAssert(particle != nullptr, "#9713: TorvMoveRestriction_InsideRect nil aParticlePtr", sourceName);
  return m_rectangle != nullptr;
}

bool TorvMoveRestriction_BounceInsideRect::apply(TorvParticle* particle) {
  if (!canApply(particle)) {
    return false;
  }
  xplAssert(particle != nullptr, "#8513: nil aParticlePtr", sourceName);
  if (particle == nullptr) {
    return false;
  }
  TorvParticle& p = *particle;
  const bool leavesLeft = wholePixel(p.left) <= rectangle().left && p.speedX < 0.0F;
  const bool leavesRight = wholePixel(p.getRight()) >= rectangle().getRight() && p.speedX > 0.0F;
  const bool leavesTop = wholePixel(p.top) <= rectangle().top && p.speedY < 0.0F;
  const bool leavesBottom = wholePixel(p.getBottom()) >= rectangle().getBottom() && p.speedY > 0.0F;
  p.speedX *= leavesLeft || leavesRight ? -1.0F : 1.0F;
  p.speedY *= leavesTop || leavesBottom ? -1.0F : 1.0F;
  return true;
}

bool TorvMoveRestriction_ContinueInsideRect::apply(TorvParticle* particle) {
  if (!canApply(particle)) {
    return false;
  }
  xplAssert(particle != nullptr, "#8513b: nil aParticlePtr", sourceName);
  if (particle == nullptr) {
    return false;
  }
  TorvParticle& p = *particle;
  if (wholePixel(p.getRight()) <= rectangle().left && p.speedX < 0.0F) {
    p.x = static_cast<float>(rectangle().getRight());
  }
  if (wholePixel(p.left) >= rectangle().getRight() && p.speedX > 0.0F) {
    p.x = static_cast<float>(rectangle().left);
  }
  if (wholePixel(p.getBottom()) <= rectangle().top && p.speedY < 0.0F) {
    p.y = static_cast<float>(rectangle().getBottom());
  }
  if (wholePixel(p.top) >= rectangle().getBottom() && p.speedY > 0.0F) {
    p.y = static_cast<float>(rectangle().top);
  }
  return true;
}
