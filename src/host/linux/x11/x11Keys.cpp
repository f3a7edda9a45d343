// Implements the look at the display's keyboard.
#include "host/linux/x11/x11Keys.h"

namespace {

// The protocol's numbers for two keys' letters.
constexpr xcb_keysym_t symbolEscape = 0xFF1B;
constexpr xcb_keysym_t symbolQ = 'q';
constexpr xcb_keysym_t symbolCapitalQ = 'Q';

}  // namespace

X11Keys::X11Keys(X11Connection& connection) : m_connection(connection) {
  const xcb_setup_t& setup = connection.setup();
  m_asked = xcb_get_keyboard_mapping(connection.get(), setup.min_keycode,
                                     static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1));
}

WPARAM X11Keys::nameOf(xcb_keycode_t key) {
  if (!m_keys) {
    m_keys = m_connection.await<xcb_get_keyboard_mapping_reply_t>(m_asked);
  }
  const xcb_keysym_t symbol = m_keys ? symbolOf(key) : 0;
  return symbol == symbolEscape ? keyEscape : symbol == symbolQ || symbol == symbolCapitalQ ? keyQ : 0;
}

xcb_keysym_t X11Keys::symbolOf(xcb_keycode_t key) const {
  const int width = m_keys->keysyms_per_keycode;
  const int first = (key - m_connection.setup().min_keycode) * width;
  const bool isListed =
      width > 0 && first >= 0 && first < xcb_get_keyboard_mapping_keysyms_length(m_keys.get());
  return isListed ? xcb_get_keyboard_mapping_keysyms(m_keys.get())[first] : 0;
}
