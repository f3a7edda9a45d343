// Whether the display is lit, or its power management (DPMS) has switched it off.
#pragma once

#include <optional>

#include "host/linux/fileDescriptor.h"
#include "host/linux/messagePump.h"
#include "host/linux/x11/x11Connection.h"
#include "host/linux/x11/x11Facts.h"

// A display that tells of changes is listened to; an older one is asked every 0.8 seconds. Nothing ever waits
// for an answer. A display without power management is always on.
class DisplayPower {
 public:
  // All borrowed. Asks for the present state at once.
  DisplayPower(X11Connection& connection, MessagePump& pump,
               std::optional<X11Facts::PowerManagement> management);
  ~DisplayPower();
  DisplayPower(const DisplayPower&) = delete;
  DisplayPower& operator=(const DisplayPower&) = delete;

  // False from when it is known to be in standby, suspended or off.
  bool isOn() const { return m_isOn; }
  // Looks for an answer; cheap. Call it whenever the display has said something.
  void collect();
  // Takes note of an event that speaks of the power. False for every other, which is somebody else's.
  bool hear(const xcb_generic_event_t& event);

 private:
  void askToBeTold();
  void ask();
  void askWhenDue();

  X11Connection& m_connection;
  MessagePump& m_pump;
  std::optional<X11Facts::PowerManagement> m_management;
  FileDescriptor m_askTimer;
  std::optional<unsigned> m_request;  // the one that waits for an answer
  bool m_isOn = true;
};
