// Everything that moves: a rectangle with a speed, kept on screen by move restrictions.
#pragma once

#include <vector>

#include "graphics/rect.h"

class TorvMoveRestriction;

// A rectangle with the names by which a particle's place is written, and its speed. T is float (pixels).
template <class T>
class TorvPhysicalPropertiesT : public xplRect<T> {
 public:
  TorvPhysicalPropertiesT() = default;
  TorvPhysicalPropertiesT(const TorvPhysicalPropertiesT&) = delete;
  TorvPhysicalPropertiesT& operator=(const TorvPhysicalPropertiesT&) = delete;

  T& x = this->left;
  T& y = this->top;
  T speedX{};  // pixels per second, positive to the right
  T speedY{};  // pixels per second, positive down
};

// Never deleted through this class.
class TorvParticle : public TorvPhysicalPropertiesT<float> {
 public:
  // Moves by the speed for this many seconds; false where nothing moved because the time or the speed is 0.
  virtual bool move(float elapsedSec);

  // Borrows the restriction, which must outlive the particle's last move. One that is added twice applies
  // twice.
  void addMoveRestriction(TorvMoveRestriction& restriction) { m_restrictions.push_back(&restriction); }

 private:
  int m_movesSinceRestricted = 0;
  std::vector<TorvMoveRestriction*> m_restrictions;
};
