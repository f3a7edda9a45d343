// Whether somebody can see the saver's window: it is not covered, and the display is on.
#pragma once

#include "host/linux/x11/displayPower.h"
#include "host/linux/x11/windowSight.h"

class X11Sight {
 public:
  enum class Change { none, seen, unseen };

  // As DisplayPower and WindowSight.
  X11Sight(X11Connection& connection, MessagePump& pump, xcb_window_t window,
           std::optional<X11Facts::PowerManagement> management)
      : m_power(connection, pump, management), m_window(window) {}

  // Takes note of an event that speaks of it. False for every other, which is somebody else's.
  bool hear(const xcb_generic_event_t& event) { return m_power.hear(event) || m_window.hear(event); }
  // Looks for answers; cheap. Call it whenever the display has said something.
  void collect() { m_power.collect(); }

  bool isSeen() const { return m_power.isOn() && m_window.isSeen(); }
  // What has become of it since the last call; each change goes into the log.
  Change takeChange();

 private:
  DisplayPower m_power;
  WindowSight m_window;
  bool m_wasSeen = true;
};
