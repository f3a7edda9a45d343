// The connection to the Wayland compositor: what it sends, without ever waiting past a request to end.
#pragma once

#include <string>

#include <wayland-client.h>

class StopSignals;

class WaylandConnection {
 public:
  // Connects to the compositor that WAYLAND_DISPLAY names, "wayland-0" where it is not set; never throws for
  // want of one.
  WaylandConnection();
  ~WaylandConnection();
  WaylandConnection(const WaylandConnection&) = delete;
  WaylandConnection& operator=(const WaylandConnection&) = delete;

  // False where there is no compositor, and once it has gone away or has refused a request.
  bool isUsable() const;
  const std::string& displayName() const { return m_displayName; }
  wl_display* get() const { return m_display; }  // null where there never was a compositor
  // Readable when the compositor has sent something; -1 where there is none.
  int descriptor() const;

  // Waiting ends early when one of these signals arrives. Borrowed; must outlive the waiting.
  void endWaitsOn(StopSignals& signals) { m_stopSignals = &signals; }

  // Sends what has been asked and waits until the compositor has dealt with all of it. False where it has
  // gone, or the program is to end.
  bool roundTrip();
  // Hands what has arrived to those whom it concerns; does not wait.
  void dispatchArrived();
  // Sends what is on its way; what the compositor does not take yet stays for the next time.
  void flush();

 private:
  // Waits until something has arrived and hands it on. False where the compositor has gone, or the program is
  // to end.
  bool waitAndDispatch();
  bool waitForInput() const;

  std::string m_displayName;
  wl_display* m_display;
  StopSignals* m_stopSignals = nullptr;
};
