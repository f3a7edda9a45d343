// Turns what the X display says into messages for the pump.
#pragma once

#include <memory>

#include "host/linux/messagePump.h"
#include "host/linux/stopSignals.h"
#include "host/linux/x11/inputGrab.h"
#include "host/linux/x11/monitorWatch.h"
#include "host/linux/x11/x11Keys.h"
#include "host/linux/x11/x11Sight.h"
#include "host/linux/x11/x11Window.h"

class X11Link : public DisplayLink {
 public:
  // All borrowed. Puts the window on the screen and, for the full run, takes keyboard and pointer.
  X11Link(X11Connection& connection, StopSignals& signals, X11Window& window, MessagePump& pump,
          const X11Facts& facts);
  ~X11Link() override;
  X11Link(const X11Link&) = delete;
  X11Link& operator=(const X11Link&) = delete;

  int descriptor() const override;
  void collect() override;
  bool mayPaint() override;
  bool isSeen() const override;
  void flush() override;

 private:
  void translate(const xcb_generic_event_t& event);
  void hearError(const xcb_generic_error_t& error);
  void hearExposure(const xcb_expose_event_t& event);
  void hearSize(const xcb_configure_notify_event_t& event);
  void hearDestruction(const xcb_destroy_notify_event_t& event);
  void hearClientMessage(const xcb_client_message_event_t& event);
  void windowIsDestroyed();
  void postPointer(int x, int y);
  void postKey(xcb_keycode_t key);
  void postButton(xcb_button_t button);
  void eraseOnce();
  // Draws again where the window can be seen again, and lets the saver follow the monitors.
  void noteChanges();

  X11Connection& m_connection;
  StopSignals& m_signals;
  X11Window& m_window;
  MessagePump& m_pump;
  std::unique_ptr<InputGrab> m_grab;         // the full run's
  std::unique_ptr<X11Keys> m_keys;           // the ordinary window's
  std::unique_ptr<MonitorWatch> m_monitors;  // the full run's
  X11Sight m_sight;
  bool m_isErased = false;
  bool m_pointerIsPut = false;  // monitors have changed since its last movement
  bool m_isStopping = false;
  int m_windowWidth;  // as the display told last
  int m_windowHeight;
};
