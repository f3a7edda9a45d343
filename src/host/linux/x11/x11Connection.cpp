// Implements the connection to the X display.
#include "host/linux/x11/x11Connection.h"

#include <sys/socket.h>
#include <xcb/xcbext.h>

#include "host/linux/readableWait.h"

namespace {

std::string nameOfDisplay() {
  const char* name = std::getenv("DISPLAY");
  return name != nullptr ? name : "";
}

}  // namespace

X11Connection::X11Connection() : m_displayName(nameOfDisplay()) {
  int number = 0;
  m_connection = xcb_connect(nullptr, &number);
  if (!isUsable()) {
    return;
  }
  auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
  for (; number > 0 && screens.rem > 1; --number) {
    xcb_screen_next(&screens);
  }
  m_screen = screens.data;
}

X11Connection::~X11Connection() {
  xcb_disconnect(m_connection);
}

bool X11Connection::isUsable() const {
  return xcb_connection_has_error(m_connection) == 0;
}

bool X11Connection::isLocal() const {
  sockaddr_storage address{};
  socklen_t size = sizeof address;
  auto* plain = reinterpret_cast<sockaddr*>(&address);
  return ::getsockname(xcb_get_file_descriptor(m_connection), plain, &size) == 0 &&
         address.ss_family == AF_UNIX;
}

bool X11Connection::waitForInput() {
  return isUsable() && waitUntilReadable(xcb_get_file_descriptor(m_connection), m_stopSignals);
}

void* X11Connection::awaitReply(unsigned sequence) {
  xcb_flush(m_connection);
  for (;;) {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (xcb_poll_for_reply(m_connection, sequence, &reply, &error) != 0) {
      std::free(error);
      return reply;
    }
    if (!waitForInput()) {
      xcb_discard_reply(m_connection, sequence);
      return nullptr;
    }
  }
}

bool X11Connection::succeeded(xcb_void_cookie_t cookie) {
  // When a later request has been answered this one has been dealt with, and asking for its error does not
  // wait.
  if (!await<xcb_get_input_focus_reply_t>(xcb_get_input_focus(m_connection))) {
    xcb_discard_reply(m_connection, cookie.sequence);
    return false;
  }
  return X11Reply<xcb_generic_error_t>(xcb_request_check(m_connection, cookie)) == nullptr;
}

X11Event X11Connection::nextEvent() {
  if (m_putBack.empty()) {
    return nextFreshEvent();
  }
  X11Event event = std::move(m_putBack.front());
  m_putBack.pop_front();
  return event;
}

X11Event X11Connection::nextFreshEvent() {
  return X11Event(xcb_poll_for_event(m_connection));
}
