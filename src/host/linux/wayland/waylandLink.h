// Turns what the Wayland compositor says into messages for the pump.
#pragma once

#include <memory>
#include <vector>

#include "host/linux/messagePump.h"
#include "host/linux/stopSignals.h"
#include "host/linux/wayland/waylandSeat.h"
#include "host/linux/wayland/waylandWindow.h"
#include "support/timeCounter.h"

class WaylandLink : public DisplayLink {
 public:
  // All borrowed. Puts the window on the screens and listens to the input devices.
  WaylandLink(WaylandConnection& connection, WaylandGlobals& globals, StopSignals& signals,
              WaylandWindow& window, MessagePump& pump);
  ~WaylandLink() override;
  WaylandLink(const WaylandLink&) = delete;
  WaylandLink& operator=(const WaylandLink&) = delete;

  int descriptor() const override;
  void collect() override;
  bool mayPaint() override;
  // False while the compositor has not wanted a frame for some time: the screens are off, or the window
  // hidden.
  bool isSeen() const override;
  // So the saver wakes once for each frame, and not once more when the frame is on the screen.
  bool canWaitForTick() const override;
  void flush() override;

 private:
  void eraseOnce();
  // Tells the log where the window has become seen or unseen.
  void noteSight();

  WaylandConnection& m_connection;
  WaylandGlobals& m_globals;
  StopSignals& m_signals;
  WaylandWindow& m_window;
  MessagePump& m_pump;
  std::vector<std::unique_ptr<WaylandSeat>> m_seats;
  xplTimeCounter m_lastWanted;  // since the compositor wanted a frame last
  xplTimeCounter m_lastShown;   // since a frame was given to the compositor
  bool m_wasSeen = true;
  bool m_isErased = false;
  bool m_isStopping = false;
};
