// Implements the connection to the compositor on the library's steps that do not wait.
#include "host/linux/wayland/waylandConnection.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "host/linux/readableWait.h"
#include "host/linux/wayland/proxy.h"
#include "support/log.h"

namespace {

std::string nameOfDisplay() {
  const char* name = std::getenv("WAYLAND_DISPLAY");
  return name != nullptr && *name != '\0' ? name : "wayland-0";
}

// What the library would print; whoever started the saver is told in our words.
__attribute__((format(printf, 1, 0))) void logComplaint(const char* format, va_list values) {
  char text[512];
  std::vsnprintf(text, sizeof text, format, values);
  std::string_view line(text);
  line = line.substr(0, line.find_last_not_of('\n') + 1);
  logWarning().add("Wayland: " + std::string(line));
}

void noteDone(void* isDone, wl_callback*, std::uint32_t) {
  *static_cast<bool*>(isDone) = true;
}

}  // namespace

WaylandConnection::WaylandConnection() : m_displayName(nameOfDisplay()) {
  wl_log_set_handler_client(logComplaint);
  m_display = wl_display_connect(nullptr);
}

WaylandConnection::~WaylandConnection() {
  if (m_display != nullptr) {
    wl_display_disconnect(m_display);
  }
}

bool WaylandConnection::isUsable() const {
  return m_display != nullptr && wl_display_get_error(m_display) == 0;
}

int WaylandConnection::descriptor() const {
  return m_display != nullptr ? wl_display_get_fd(m_display) : -1;
}

bool WaylandConnection::roundTrip() {
  if (!isUsable()) {
    return false;
  }
  static const wl_callback_listener listener{noteDone};
  bool isDone = false;
  const Proxy<wl_callback> callback(wl_display_sync(m_display));
  wl_callback_add_listener(callback.get(), &listener, &isDone);
  while (!isDone) {
    if (!waitAndDispatch()) {
      return false;
    }
  }
  return true;
}

bool WaylandConnection::waitAndDispatch() {
  while (wl_display_prepare_read(m_display) != 0) {
    if (wl_display_dispatch_pending(m_display) < 0) {
      return false;
    }
  }
  flush();
  if (!waitForInput()) {
    wl_display_cancel_read(m_display);
    return false;
  }
  wl_display_read_events(m_display);
  return wl_display_dispatch_pending(m_display) >= 0;
}

bool WaylandConnection::waitForInput() const {
  return isUsable() && waitUntilReadable(descriptor(), m_stopSignals);
}

void WaylandConnection::dispatchArrived() {
  while (isUsable() && wl_display_prepare_read(m_display) != 0) {
    wl_display_dispatch_pending(m_display);
  }
  if (isUsable()) {
    // The descriptor does not block: where nothing has arrived this comes back at once.
    wl_display_read_events(m_display);
    wl_display_dispatch_pending(m_display);
  }
}

void WaylandConnection::flush() {
  if (isUsable()) {
    wl_display_flush(m_display);
  }
}
