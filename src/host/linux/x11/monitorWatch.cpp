// Implements the watch over the monitors.
#include "host/linux/x11/monitorWatch.h"

#include <algorithm>

#include <xcb/randr.h>
#include <xcb/xcbext.h>

namespace {

bool areEqual(const std::vector<xplEdges>& some, const std::vector<xplEdges>& others) {
  return std::equal(some.begin(), some.end(), others.begin(), others.end(),
                    [](const xplEdges& one, const xplEdges& other) {
                      return one.left == other.left && one.top == other.top && one.right == other.right &&
                             one.bottom == other.bottom;
                    });
}

}  // namespace

MonitorWatch::MonitorWatch(X11Connection& connection, const X11Facts& facts)
    : m_connection(connection), m_monitors(facts.monitors), m_firstEvent(facts.firstMonitorEvent) {
  if (m_firstEvent) {
    constexpr std::uint16_t all = XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                                  XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE | XCB_RANDR_NOTIFY_MASK_RESOURCE_CHANGE;
    xcb_randr_select_input(connection.get(), connection.screen().root, all);
    // What changed since the facts were collected was told to nobody.
    ask();
  }
}

MonitorWatch::~MonitorWatch() {
  if (m_request) {
    xcb_discard_reply(m_connection.get(), *m_request);
  }
}

void MonitorWatch::ask() {
  if (m_request) {
    // Its answer may be older than what has just been told.
    xcb_discard_reply(m_connection.get(), *m_request);
  }
  m_request = xcb_randr_get_monitors_unchecked(m_connection.get(), m_connection.screen().root, 1).sequence;
}

bool MonitorWatch::hear(const xcb_generic_event_t& event) {
  if (!m_firstEvent) {
    return false;
  }
  const int kind = event.response_type & 0x7F;
  const bool isOfMonitors =
      kind == *m_firstEvent + XCB_RANDR_SCREEN_CHANGE_NOTIFY || kind == *m_firstEvent + XCB_RANDR_NOTIFY;
  // Monitors that a user defines are told of in this way alone, even where the screen's size stays.
  const bool isOfScreen =
      kind == XCB_CONFIGURE_NOTIFY &&
      reinterpret_cast<const xcb_configure_notify_event_t&>(event).window == m_connection.screen().root;
  if (isOfMonitors || isOfScreen) {
    ask();
    return true;
  }
  return false;
}

std::optional<std::vector<xplEdges>> MonitorWatch::takeChange() {
  void* memory = nullptr;
  xcb_generic_error_t* error = nullptr;
  if (!m_request || xcb_poll_for_reply(m_connection.get(), *m_request, &memory, &error) == 0) {
    return std::nullopt;
  }
  std::free(error);
  m_request.reset();
  const X11Reply<xcb_randr_get_monitors_reply_t> reply(static_cast<xcb_randr_get_monitors_reply_t*>(memory));
  auto monitors = monitorsOf(reply.get());
  if (monitors.empty() || areEqual(monitors, m_monitors)) {
    return std::nullopt;
  }
  m_monitors = monitors;
  return monitors;
}
