// Tells apart the few keys that end the run in an ordinary window.
#pragma once

#include "host/linux/keys.h"
#include "host/linux/x11/x11Connection.h"

class X11Keys {
 public:
  // Asks the display for its keyboard, and does not wait for the answer. The connection is borrowed.
  explicit X11Keys(X11Connection& connection);

  // keyEscape, keyQ, or 0 for every other key. The first call may wait for the display.
  WPARAM nameOf(xcb_keycode_t key);

 private:
  xcb_keysym_t symbolOf(xcb_keycode_t key) const;

  X11Connection& m_connection;
  xcb_get_keyboard_mapping_cookie_t m_asked;
  X11Reply<xcb_get_keyboard_mapping_reply_t> m_keys;  // null before a key was pressed, and where it failed
};
