// Whether a window can be seen, as the display tells of it.
#pragma once

#include <xcb/xcb.h>

// A window of which nothing has been told counts as seen: one of another program may be so already. On a
// screen that a compositor puts together, windows under others count as seen, too; there the display does not
// tell.
class WindowSight {
 public:
  explicit WindowSight(xcb_window_t window) : m_window(window) {}

  // Takes note of an event that speaks of the window's being shown, hidden or covered. False for every other.
  bool hear(const xcb_generic_event_t& event);
  // False while the window is not on the screen, or nothing of it can be seen for others that lie over it.
  bool isSeen() const { return m_isShown && !m_isCovered; }

 private:
  xcb_window_t m_window;
  bool m_isShown = true;
  bool m_isCovered = false;
};
