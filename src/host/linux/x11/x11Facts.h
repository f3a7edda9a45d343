// What the program asks the display at its start, all in two questions and answers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <xcb/randr.h>

#include "graphics/linux/surface.h"
#include "host/linux/x11/x11Connection.h"

struct X11Facts {
  // A window of another program.
  struct ForeignWindow {
    xcb_window_t id = 0;
    xcb_visualid_t visual = 0;
    int depth = 0;
    bool canBeDrawnOn = false;
    bool isRoot = false;
    int x = 0, y = 0;  // in screen coordinates
    int width = 0, height = 0;
  };

  int screenWidth = 0;  // pixels
  int screenHeight = 0;
  std::vector<xplEdges> monitors;  // screen coordinates, the main one first; never empty
  // The first of the events by which the display tells of monitors; nothing where it does not.
  std::optional<std::uint8_t> firstMonitorEvent;
  int dotsPerInch = 96;
  std::optional<ForeignWindow> window;  // nothing where there is no such window
  int pointerX = 0;                     // screen coordinates
  int pointerY = 0;
  // The event by which the display says that it has read a frame; nothing where it takes no shared memory.
  std::optional<std::uint8_t> frameReadEvent;

  // What the display offers to tell of its power management (DPMS).
  struct PowerManagement {
    std::uint8_t opcode = 0;  // of its requests and events
    bool tells = false;       // it tells of each change; an older one must be asked
  };
  std::optional<PowerManagement> power;  // nothing where the display has none

  // window: the window of another program that is asked about, 0 for none.
  static X11Facts collect(X11Connection& connection, xcb_window_t window);
};

// The monitors that a reply lists, the primary one first; none where the reply is null.
std::vector<xplEdges> monitorsOf(const xcb_randr_get_monitors_reply_t* reply);

// Dots per inch as a resource text ("Xft.dpi:\t144") gives them, between 24 and 960; nothing where it does
// not.
std::optional<int> dotsPerInchOf(const std::string& resources);
