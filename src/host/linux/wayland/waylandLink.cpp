// Implements the link between the compositor and the pump.
#include "host/linux/wayland/waylandLink.h"

#include <utility>

#include "support/log.h"

WaylandLink::WaylandLink(WaylandConnection& connection, WaylandGlobals& globals, StopSignals& signals,
                         WaylandWindow& window, MessagePump& pump)
    : m_connection(connection), m_globals(globals), m_signals(signals), m_window(window), m_pump(pump) {
  // Reading the signals is collect()'s; the watch only wakes the pump.
  m_pump.watch(m_signals.descriptor(), [this] { m_signals.arrived(); });
  m_globals.handSeatsTo([this](Proxy<wl_seat> seat) {
    m_seats.push_back(std::make_unique<WaylandSeat>(std::move(seat), m_pump));
  });
  m_window.show();
}

WaylandLink::~WaylandLink() {
  m_globals.handSeatsTo(nullptr);
  m_pump.unwatch(m_signals.descriptor());
}

int WaylandLink::descriptor() const {
  return m_connection.descriptor();
}

void WaylandLink::collect() {
  m_connection.dispatchArrived();
  m_window.follow();
  eraseOnce();
  noteSight();
  if (m_window.takeMonitorsChanged()) {
    m_pump.post(WM_DISPLAYCHANGE);
  }
  flush();
  if (!m_connection.isUsable()) {
    m_pump.windowIsGone("the Wayland display " + m_connection.displayName() +
                        " went away: start the saver again when it is back");
  } else if (!m_window.failure().empty()) {
    m_pump.windowIsGone(m_window.failure());
  } else if (m_window.takeClosing()) {
    m_pump.post(WM_CLOSE);
  } else if (m_signals.arrived() && !m_isStopping) {
    m_isStopping = true;
    logInfo().addf("Ended by signal %i of process %i", m_signals.number(), m_signals.sender());
    m_pump.post(WM_CLOSE);
  }
}

bool WaylandLink::mayPaint() {
  return m_window.wantsFrame();
}

bool WaylandLink::isSeen() const {
  // A screen that is on wants a frame many times a second.
  constexpr double longestWait = 0.5;  // seconds
  return m_window.wantsFrame() || m_lastWanted.seconds() < longestWait;
}

void WaylandLink::noteSight() {
  if (m_window.wantsFrame()) {
    m_lastWanted.restart();
  }
  if (m_wasSeen != isSeen()) {
    m_wasSeen = !m_wasSeen;
    logInfo().add(m_wasSeen ? "The window can be seen again: it is drawn on"
                            : "The screens are off or the window is hidden: drawing waits");
  }
}

bool WaylandLink::canWaitForTick() const {
  // Shorter than the time from one frame to the next: where the compositor needs longer it is listened to.
  constexpr double soon = 0.03;  // seconds
  return m_isErased && !m_window.wantsFrame() && m_lastShown.seconds() < soon;
}

void WaylandLink::flush() {
  if (m_window.commit()) {
    m_lastShown.restart();
  }
  m_connection.flush();
}

// When the first surface has its size the saver draws at once, as when it is exposed elsewhere.
void WaylandLink::eraseOnce() {
  if (!m_isErased && m_window.wantsFrame()) {
    m_isErased = true;
    m_pump.post(WM_ERASEBKGND);
    m_pump.invalidate();
  }
}
