// Implements the choice of a display and the connecting to it.
#include "host/linux/displayChoice.h"

#include <cstdlib>

#include "host/linux/wayland/waylandDisplay.h"
#include "host/linux/x11/x11Display.h"

namespace {

std::optional<std::string> valueOf(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0' ? std::optional<std::string>(value) : std::nullopt;
}

bool isInForeignWindow(const HostRequest& request) {
  return request.mode == HostRequest::Mode::preview || request.mode == HostRequest::Mode::foreignRun;
}

}  // namespace

DisplayEnvironment DisplayEnvironment::ofProcess() {
  return {valueOf("WAYLAND_DISPLAY"), valueOf("WAYLAND_SOCKET"), valueOf("DISPLAY")};
}

DisplayChoice chooseDisplay(const HostRequest& request, const DisplayEnvironment& environment) {
  if (isInForeignWindow(request) || request.display == HostRequest::Display::x11) {
    return DisplayChoice::x11;
  }
  if (request.display == HostRequest::Display::wayland) {
    return DisplayChoice::wayland;
  }
  if (!environment.waylandDisplay && !environment.waylandSocket) {
    return DisplayChoice::x11;
  }
  return environment.x11Display ? DisplayChoice::waylandElseX11 : DisplayChoice::wayland;
}

ConnectedDisplay connectDisplay(const HostRequest& request, const DisplayEnvironment& environment) {
  const DisplayChoice choice = chooseDisplay(request, environment);
  if (choice == DisplayChoice::x11) {
    return {std::make_unique<X11Display>(), ""};
  }
  auto wayland = std::make_unique<WaylandDisplay>();
  if (choice == DisplayChoice::wayland || wayland->isUsable()) {
    return {std::move(wayland), ""};
  }
  return {std::make_unique<X11Display>(), "Cannot connect to Wayland display " + wayland->name() +
                                              ": running on X display " +
                                              environment.x11Display.value_or("")};
}
