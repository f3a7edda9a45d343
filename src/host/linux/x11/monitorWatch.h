// Learns of monitors that come, go or change while the saver covers them.
#pragma once

#include <optional>
#include <vector>

#include "graphics/linux/edges.h"
#include "host/linux/x11/x11Connection.h"
#include "host/linux/x11/x11Facts.h"

// The display tells that something has changed, and is asked what the monitors are now; nothing ever waits
// for an answer. A display without the extension says nothing.
class MonitorWatch {
 public:
  // The connection is borrowed. Asks to be told from now on.
  MonitorWatch(X11Connection& connection, const X11Facts& facts);
  ~MonitorWatch();
  MonitorWatch(const MonitorWatch&) = delete;
  MonitorWatch& operator=(const MonitorWatch&) = delete;

  // Takes note of an event; others may want it, too. True where the monitors may have changed: the display
  // then puts the pointer elsewhere when it stood on one that has gone.
  bool hear(const xcb_generic_event_t& event);
  // The monitors, the main one first, once after they have become others; cheap. Call it whenever the display
  // has said something. A display that has none for the moment has not changed.
  std::optional<std::vector<xplEdges>> takeChange();

 private:
  void ask();

  X11Connection& m_connection;
  std::vector<xplEdges> m_monitors;
  std::optional<std::uint8_t> m_firstEvent;
  std::optional<unsigned> m_request;  // the one that waits for an answer
};
