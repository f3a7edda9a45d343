// An effect that leads from what was on the screen to the sky, drawn in place of it until it has finished.
#pragma once

#include <cstdint>

#include "graphics/window.h"

class cWindowTransitionEffect_base {
 public:
  cWindowTransitionEffect_base() = default;
  virtual ~cWindowTransitionEffect_base() = default;
  cWindowTransitionEffect_base(const cWindowTransitionEffect_base&) = delete;
  cWindowTransitionEffect_base& operator=(const cWindowTransitionEffect_base&) = delete;

  // Starts on the window, which is borrowed and must outlive the effect; null for none. The monitor id is not
  // used.
  virtual void initWithWindow(xplWindow* window, std::int32_t monitorId);
  // Draws the next frame; nothing once it has finished.
  virtual void draw() = 0;
  // The window's size in pixels; 0 without a window.
  virtual int getWidth();
  virtual int getHeight();

  bool finished() const { return m_finished; }

 protected:
  xplWindow* window() { return m_window; }
  void setFinished() { m_finished = true; }

 private:
  xplWindow* m_window = nullptr;
  bool m_finished = false;
};
