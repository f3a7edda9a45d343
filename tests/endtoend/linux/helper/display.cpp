// Implements the helper's connection.
#include "display.h"

#include <iostream>

void fail(const std::string& what) {
  std::cerr << "x11_helper: " << what << "\n";
  std::exit(1);
}

Display::Display() : m_connection(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(m_connection) != 0) {
    fail("cannot open the display");
  }
  m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
}

Display::~Display() {
  xcb_disconnect(m_connection);
}

void Display::check(xcb_void_cookie_t cookie, const char* what) const {
  if (Reply<xcb_generic_error_t>(xcb_request_check(m_connection, cookie))) {
    fail(std::string("the display refused: ") + what);
  }
}

std::uint32_t windowOf(const Display& display, const std::string& text) {
  return text == "root" ? display.screen().root
                        : static_cast<std::uint32_t>(std::strtoul(text.c_str(), nullptr, 0));
}
