// Makes the window that the command line asks for, or takes the one that it names.
#pragma once

#include <memory>

#include "host/linux/commandLine.h"
#include "host/linux/x11/x11Window.h"

// The id of the window whose facts the request needs; 0 where it makes its own.
xcb_window_t foreignWindowOf(const X11Connection& connection, const HostRequest& request);

// facts: about that window. Nothing is on the screen yet. Throws HostFailure where there is no such window,
// or one that cannot show true colours.
std::unique_ptr<X11Window> makeX11Window(X11Connection& connection, const X11Facts& facts,
                                         const HostRequest& request);

// The parts of the monitors inside a rectangle, relative to its corner; the whole rectangle where there are
// none. All in screen coordinates; the order stays.
std::vector<xplEdges> monitorsInside(const std::vector<xplEdges>& monitors, const xplEdges& rectangle);
