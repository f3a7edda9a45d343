// Asks the X server or the Wayland compositor what it is.
#include "host/linux/doctor/lookAtDisplay.h"

#include "host/linux/displayChoice.h"
#include "host/linux/wayland/outputLayout.h"
#include "host/linux/wayland/waylandConnection.h"
#include "host/linux/wayland/waylandGlobals.h"
#include "host/linux/x11/x11Connection.h"
#include "host/linux/x11/x11Facts.h"

namespace {

// X.Org counts 21.1.7 as 12101007, and 1.20.13 as 12013000.
std::string versionOf(std::uint32_t release) {
  const std::string minor = std::to_string(release / 100000 % 100);
  const std::string patch = std::to_string(release / 1000 % 100);
  const std::string snap = std::to_string(release % 1000);
  constexpr std::uint32_t firstWithoutOne = 12100000;
  return release >= firstWithoutOne ? minor + "." + patch + "." + snap : "1." + minor + "." + patch;
}

std::string serverOf(const xcb_setup_t& setup) {
  const std::string vendor(xcb_setup_vendor(&setup),
                           static_cast<std::size_t>(xcb_setup_vendor_length(&setup)));
  return vendor.find("X.Org") == std::string::npos ? vendor : "X.Org " + versionOf(setup.release_number);
}

std::optional<int> saverSecondsOf(X11Connection& connection) {
  const auto reply = connection.await<xcb_get_screen_saver_reply_t>(xcb_get_screen_saver(connection.get()));
  return reply ? std::optional<int>(reply->timeout) : std::nullopt;
}

DisplayView lookAtX11() {
  DisplayView view;
  X11Connection connection;
  view.name = connection.displayName();
  if (!connection.isUsable()) {
    return view;
  }
  const X11Facts facts = X11Facts::collect(connection, 0);
  if (!connection.isUsable()) {
    return view;
  }
  view.kind = DisplayView::Kind::x11;
  view.server = serverOf(connection.setup());
  view.width = facts.screenWidth;
  view.height = facts.screenHeight;
  view.monitors = facts.monitors;
  view.saverSeconds = saverSecondsOf(connection);
  return view;
}

DisplayView lookAtWayland() {
  DisplayView view;
  WaylandConnection connection;
  view.name = connection.displayName();
  if (!connection.isUsable()) {
    return view;
  }
  WaylandGlobals globals(connection);
  if (!globals.learn()) {
    return view;
  }
  view.kind = DisplayView::Kind::wayland;
  if (const auto layout = layOutOutputs(globals.knownOutputs(), globals.viewporter() != nullptr)) {
    view.width = layout->width;
    view.height = layout->height;
    view.monitors = layout->monitors;
  }
  return view;
}

}  // namespace

DisplayView lookAtDisplay() {
  const DisplayChoice choice = chooseDisplay(HostRequest{}, DisplayEnvironment::ofProcess());
  if (choice == DisplayChoice::x11) {
    return lookAtX11();
  }
  const DisplayView wayland = lookAtWayland();
  const bool isThere = wayland.kind != DisplayView::Kind::none;
  return isThere || choice == DisplayChoice::wayland ? wayland : lookAtX11();
}
