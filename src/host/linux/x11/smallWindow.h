// Tells the window of a daemon, which gets the full run, from the pane of a settings program.
#pragma once

#include "host/linux/commandLine.h"
#include "host/linux/x11/x11Facts.h"

// What a request is on this display. Settings programs may start a saver for their preview in the same words
// as the daemon does for the screen, and differ in the window alone: a foreignRun in a window, not the root,
// of at most half of every monitor's area is a preview. Every other request stays what it is.
HostRequest::Mode modeIn(const X11Facts& facts, HostRequest::Mode asked);
