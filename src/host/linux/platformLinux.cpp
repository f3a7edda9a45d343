// Supplies the host's seam on Linux.
#include "host/linux/configureProgram.h"
#include "host/linux/messagePump.h"
#include "host/linux/windowTimers.h"
#include "host/platform.h"

std::uintptr_t xplStartTimer(xplWindowHandle, std::uintptr_t wantedId, unsigned milliseconds) {
  return windowTimers().start(wantedId, milliseconds);
}

void xplStopTimer(xplWindowHandle, std::uintptr_t id) {
  windowTimers().stop(id);
}

void xplInvalidateClientArea(xplWindowHandle) {
  if (MessagePump* pump = MessagePump::current()) {
    pump->invalidate();
  }
}

xplPaintScope::xplPaintScope(xplWindowHandle window) : m_window(window), m_data{} {
  if (MessagePump* pump = MessagePump::current()) {
    pump->validate();
  }
}

xplPaintScope::~xplPaintScope() = default;

std::uintptr_t xplHandleNumber(xplWindowHandle window) {
  return window != nullptr ? window->id() : 0;
}

// Windows of that class belong to an editor of the other platform; there are none here to look for.
std::uintptr_t xplFindNotepadWindow() {
  return 0;
}

bool xplEnumerateMonitors(xplWindowHandle window, std::vector<xplRect<int>>& monitors) {
  if (window == nullptr) {
    return false;
  }
  const std::vector<xplEdges> list = window->monitors();
  for (const auto& monitor : list) {
    monitors.emplace_back(monitor.top, monitor.left, monitor.right - monitor.left,
                          monitor.bottom - monitor.top);
  }
  return !list.empty();
}

void xplShowSettings(xplWindowHandle) {
  runConfigureProgram("lunaria-configure");
}
