// What keeps particles inside a rectangle: bouncing off its edges, or coming back in on the other side.
#pragma once

#include "graphics/rect.h"
#include "sprites/particle.h"

// Shared by any number of particles, which only borrow it.
class TorvMoveRestriction {
 public:
  // False without a rectangle, true otherwise, also where nothing had to change. A null particle is a mistake
  // of the caller: it is reported and false is returned.
  virtual bool apply(TorvParticle* particle) = 0;

 protected:
  ~TorvMoveRestriction() = default;  // never deleted through this class
};

// Comparisons truncate the particle's edges towards zero, so that -0.5 counts as 0.
class TorvMoveRestriction_InsideRect : public TorvMoveRestriction {
 public:
  TorvMoveRestriction_InsideRect() = default;
  // Borrows the rectangle (pixels), which must outlive the restriction; null for none.
  explicit TorvMoveRestriction_InsideRect(const xplRect<int>* rectangle) : m_rectangle(rectangle) {}

 protected:
  ~TorvMoveRestriction_InsideRect() = default;
  // False where there is nothing to apply to; reports a null particle.
  bool canApply(const TorvParticle* particle) const;
  const xplRect<int>& rectangle() const { return *m_rectangle; }

 private:
  const xplRect<int>* m_rectangle = nullptr;
};

// Turns the speed round at an edge that the particle has reached and still moves towards; never moves the
// particle.
class TorvMoveRestriction_BounceInsideRect : public TorvMoveRestriction_InsideRect {
 public:
  using TorvMoveRestriction_InsideRect::TorvMoveRestriction_InsideRect;
  bool apply(TorvParticle* particle) override;
};

// Puts a particle that has wholly left on one side just outside the opposite side.
class TorvMoveRestriction_ContinueInsideRect : public TorvMoveRestriction_InsideRect {
 public:
  using TorvMoveRestriction_InsideRect::TorvMoveRestriction_InsideRect;
  bool apply(TorvParticle* particle) override;
};
