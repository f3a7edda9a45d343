// Looks at the desktop and the display.
#include "host/linux/doctor/checks.h"

namespace {

std::string sizeOf(int width, int height) {
  return std::to_string(width) + "x" + std::to_string(height);
}

std::string monitorsOf(const DisplayView& display) {
  if (display.monitors.size() == 1) {
    return "It has one monitor.";
  }
  std::string text = "It has " + std::to_string(display.monitors.size()) + " monitors:";
  for (std::size_t i = 0; i < display.monitors.size(); ++i) {
    const xplEdges& monitor = display.monitors[i];
    text += (i == 0 ? " the main one with " : ", one with ") +
            sizeOf(monitor.right - monitor.left, monitor.bottom - monitor.top) + " at " +
            std::to_string(monitor.left) + "," + std::to_string(monitor.top);
  }
  return text + ". One sky covers them all; the moon is on the main one.";
}

Finding lookAtDesktop(SystemView& system) {
  const auto desktop = system.environment("XDG_CURRENT_DESKTOP");
  return {desktop ? "The desktop is " + *desktop + "."
                  : "No desktop gives its name here (XDG_CURRENT_DESKTOP is not set).",
          ""};
}

Finding lookAtDisplay(SystemView& system) {
  const DisplayView display = system.display();
  if (display.kind == DisplayView::Kind::none) {
    return display.name.empty()
               ? Finding{"There is no display here: neither WAYLAND_DISPLAY nor DISPLAY is set.",
                         "run this in a terminal of your desktop"}
               : Finding{"The display " + display.name + " cannot be opened.",
                         "run this in a terminal of your desktop, as the user who is logged in"};
  }
  const std::string kind = display.kind == DisplayView::Kind::wayland ? "Wayland" : "X11";
  return {"The display is " + display.name + " (" + kind +
              (display.server.empty() ? "" : ", " + display.server) + "), " +
              sizeOf(display.width, display.height) + " pixels large. " + monitorsOf(display),
          ""};
}

}  // namespace

Findings DesktopCheck::look(SystemView& system) {
  return {lookAtDesktop(system), lookAtDisplay(system)};
}
