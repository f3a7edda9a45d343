// The options of the command line that choose a mode and take no value.
#pragma once

#include <array>
#include <string_view>

#include "host/linux/commandLine.h"

struct PlainMode {
  std::string_view name;  // without its dashes
  HostRequest::Mode mode;
};

// The options that are a mode and take no value.
inline constexpr std::array plainModes{
    PlainMode{"fullscreen", HostRequest::Mode::fullRun},
    PlainMode{"configure", HostRequest::Mode::configuration},
    PlainMode{"install-xscreensaver", HostRequest::Mode::installXScreenSaver},
    PlainMode{"uninstall-xscreensaver", HostRequest::Mode::uninstallXScreenSaver},
    PlainMode{"doctor", HostRequest::Mode::doctor},
    PlainMode{"help", HostRequest::Mode::help},
    PlainMode{"version", HostRequest::Mode::version},
};

// Whether a mode wins over every other, and over errors: it is an answer on its own.
constexpr bool isAnswer(HostRequest::Mode mode) {
  return mode == HostRequest::Mode::help || mode == HostRequest::Mode::version;
}
