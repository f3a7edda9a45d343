// What the command line asks the program to do.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

struct HostRequest {
  enum class Mode {
    fullRun,         // over the whole virtual screen
    foreignRun,      // the full run inside a window that another program owns; the preview in a small one
    preview,         // the preview inside such a window
    ordinaryWindow,  // the full run in a window of our own, to try it out
    configuration,
    installXScreenSaver,    // put Lunaria into the user's XScreenSaver and choose it
    uninstallXScreenSaver,  // and take it out again
    doctor,                 // look at the system, and say what is not well
    help,
    version
  };
  enum class Display { automatic, x11, wayland };

  Mode mode = Mode::fullRun;
  // Which kind of display to run on; fullRun and ordinaryWindow. The others are X11's.
  Display display = Display::automatic;
  // foreignRun and preview: the X11 id of the window. A foreignRun without one is drawn on the root window.
  std::optional<std::uint32_t> window;
  // ordinaryWindow: its size in pixels, each in [1, 16384].
  int width = 960;
  int height = 600;
  // Every run: whether its frames and their cost are told when it is over.
  bool hasStatistics = false;
};

struct CommandLineError {
  std::string text;        // one line, without the program's name
  bool needsUsage = true;  // whether the list of options helps to mend it
};

using CommandLine = std::variant<HostRequest, CommandLineError>;

// arguments: without the program's own name. screenSaverWindow: the value of XSCREENSAVER_WINDOW, where it is
// set. Where options name several modes the last one counts, but a window named by its id wins over --root
// wherever it stands, and --help and --version win over everything.
CommandLine parseCommandLine(const std::vector<std::string>& arguments,
                             const std::optional<std::string>& screenSaverWindow);

// The arguments as the application object gets them: the program's name, then "/s", "/p" and the window's
// decimal id, or "/c".
std::vector<std::string> canonicalArguments(const std::string& program, const HostRequest& request);

// The answers to --help and --version, each ending with a line end.
std::string usageText();
std::string versionText();
