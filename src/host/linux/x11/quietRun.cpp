// Implements the look at a window's place among the monitors.
#include "host/linux/x11/quietRun.h"

#include <algorithm>
#include <cstdint>

namespace {

bool containsCorner(const X11Facts::ForeignWindow& window, const xplEdges& monitor) {
  return window.x <= monitor.left && monitor.left < window.x + window.width && window.y <= monitor.top &&
         monitor.top < window.y + window.height;
}

// In pixels.
std::int64_t overlap(const X11Facts::ForeignWindow& window, const xplEdges& monitor) {
  const int width = std::min(window.x + window.width, monitor.right) - std::max(window.x, monitor.left);
  const int height = std::min(window.y + window.height, monitor.bottom) - std::max(window.y, monitor.top);
  return std::int64_t{std::max(width, 0)} * std::max(height, 0);
}

}  // namespace

bool isQuietIn(const X11Facts& facts, HostRequest::Mode mode) {
  const bool isOneOfSeveral = mode == HostRequest::Mode::foreignRun && facts.window.has_value() &&
                              !facts.window->isRoot && facts.monitors.size() > 1;
  // Two monitors that show the same have one window, which may be cut to the larger one.
  if (!isOneOfSeveral || containsCorner(*facts.window, facts.monitors.front())) {
    return false;
  }
  const auto onMain = overlap(*facts.window, facts.monitors.front());
  return std::any_of(facts.monitors.begin() + 1, facts.monitors.end(),
                     [&](const xplEdges& monitor) { return overlap(*facts.window, monitor) > onMain; });
}
