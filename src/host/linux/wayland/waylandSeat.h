// The input devices of one seat, as messages for the pump.
#pragma once

#include "host/linux/messagePump.h"
#include "host/linux/wayland/proxy.h"
#include "host/linux/wayland/saverSurface.h"
#include "host/linux/wayland/waylandKeys.h"

// What the pointer and touches do is told to the full run only, over which the pointer is hidden.
class WaylandSeat {
 public:
  // The pump is borrowed.
  WaylandSeat(Proxy<wl_seat> seat, MessagePump& pump);
  WaylandSeat(const WaylandSeat&) = delete;
  WaylandSeat& operator=(const WaylandSeat&) = delete;

 private:
  friend struct WaylandSeatListeners;

  void takeDevices(std::uint32_t capabilities);
  void takePointer();
  void takeKeyboard();
  void takeTouch();
  // how: the wParam of the message.
  void postPointer(wl_fixed_t x, wl_fixed_t y, WPARAM how);

  MessagePump& m_pump;
  Proxy<wl_seat> m_seat;
  Proxy<wl_pointer> m_pointer;
  Proxy<wl_keyboard> m_keyboard;
  Proxy<wl_touch> m_touch;
  WaylandKeys m_keys;
  SaverSurface::Place m_pointerOn;  // where the pointer is
};
