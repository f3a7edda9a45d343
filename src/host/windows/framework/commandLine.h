// What the command line asks the framework to do.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct FrameworkCommand {
  enum class Mode { fullRun, preview, configuration, changePassword };
  Mode mode = Mode::configuration;
  // The number of the window that the preview fills or that owns the settings; 0 where none is named.
  std::uintptr_t window = 0;
  // True when the settings were asked for without a window: they then belong to the one in the foreground.
  bool ownedByForeground = false;
};

// arguments: the program's own name first. The first argument after it counts: "s", "p", "c" or "a" after '/'
// or
// '-', in either case, the window's decimal number after ':' or as the next argument. Without an argument,
// and with one that is none of these, it is the configuration: the mode that does no harm.
FrameworkCommand frameworkCommandOf(const std::vector<std::string>& arguments);
