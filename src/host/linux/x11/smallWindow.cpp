// Implements the look at a window's size.
#include "host/linux/x11/smallWindow.h"

#include <algorithm>
#include <cstdint>

namespace {

// Every monitor counts, since a daemon gives each one a window of its own.
bool isSmall(const X11Facts::ForeignWindow& window, const std::vector<xplEdges>& monitors) {
  return std::all_of(monitors.begin(), monitors.end(), [&](const xplEdges& monitor) {
    const auto area = std::int64_t{monitor.right - monitor.left} * (monitor.bottom - monitor.top);
    return std::int64_t{window.width} * window.height <= area / 2;
  });
}

}  // namespace

HostRequest::Mode modeIn(const X11Facts& facts, HostRequest::Mode asked) {
  const bool mayBePreview =
      asked == HostRequest::Mode::foreignRun && facts.window.has_value() && !facts.window->isRoot;
  return mayBePreview && isSmall(*facts.window, facts.monitors) ? HostRequest::Mode::preview : asked;
}
