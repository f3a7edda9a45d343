// A particle that can draw itself on the window.
#pragma once

#include "graphics/window.h"
#include "sprites/particle.h"

// A place in float pixels.
struct TorvPoint {
  float x = 0.0F;
  float y = 0.0F;
};

// Never deleted through this class: those kinds that are deleted through a base add a virtual destructor of
// their own.
class TorvSprite : public TorvParticle {
 public:
  // The name is used in the log only; it must live as long as the sprite (a literal).
  explicit TorvSprite(const char* name) : m_name(name) {}

  // A random place at which the sprite lies wholly inside the area, where it is small enough for it.
  virtual void setRandomPosition(TorvPoint minPoint, TorvPoint maxPoint);
  virtual void draw() = 0;
  // Computes width and height (pixels) for the present content and window.
  virtual void calcSize() = 0;
  // Borrows the window on which the sprite draws from now on, or null; the size must be computed again.
  virtual void setRenderWindow(xplWindow* window);
  // One frame: the elapsed time in seconds.
  virtual void update(float elapsedSec);

  // A sprite is shown while both counts are below 1.
  void disable() { ++m_disabledCount; }
  void enable();
  void hide() { ++m_hiddenCount; }
  void unhide() { --m_hiddenCount; }
  int disabledCount() const { return m_disabledCount; }
  int hiddenCount() const { return m_hiddenCount; }
  bool isEnabled() const { return m_disabledCount < 1; }
  bool isShown() const { return m_disabledCount < 1 && m_hiddenCount < 1; }

  const char* name() const { return m_name; }
  xplWindow* renderWindow() const { return m_renderWindowPtr; }
  bool sizeIsValid() const { return m_sizeIsValid; }

 protected:
  ~TorvSprite() = default;
  void setSizeIsValid(bool valid) { m_sizeIsValid = valid; }

 private:
  int m_disabledCount = 0;
  int m_hiddenCount = 0;
  const char* m_name;
  xplWindow* m_renderWindowPtr = nullptr;
  bool m_sizeIsValid = false;
};
