// Chooses between X11 and Wayland.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/linux/commandLine.h"
#include "host/linux/saverDisplay.h"

// What of the environment the choice depends on; nothing where a variable is not set or empty.
struct DisplayEnvironment {
  std::optional<std::string> waylandDisplay;  // WAYLAND_DISPLAY
  std::optional<std::string>
      waylandSocket;                      // WAYLAND_SOCKET, a connection that was made by whoever started us
  std::optional<std::string> x11Display;  // DISPLAY

  static DisplayEnvironment ofProcess();
};

enum class DisplayChoice {
  x11,
  wayland,
  waylandElseX11  // X11 where the compositor cannot be reached
};

// Windows of other programs are a matter of X11 alone.
DisplayChoice chooseDisplay(const HostRequest& request, const DisplayEnvironment& environment);

// A display that was connected to, if one was to be had: where it was not, opening it tells why.
struct ConnectedDisplay {
  std::unique_ptr<SaverDisplay> display;  // never null
  std::string note;  // for the log: why it is not the one that was to be expected; or empty
};
ConnectedDisplay connectDisplay(const HostRequest& request, const DisplayEnvironment& environment);
