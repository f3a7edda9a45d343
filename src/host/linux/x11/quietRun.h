// Tells which of the runs that a daemon starts at once, one for each monitor, are to be quiet.
#pragma once

#include "host/linux/commandLine.h"
#include "host/linux/x11/x11Facts.h"

// True where a run of this mode (as modeIn has it) leaves the sounds and the usage report to the run in the
// window over the main monitor, the first of the facts' monitors. That is so for a foreignRun whose window,
// not the root, neither contains the main monitor's upper left corner nor overlaps the main monitor at least
// as much as each other one, and lies on one of several monitors at all. Every other run is alone.
bool isQuietIn(const X11Facts& facts, HostRequest::Mode mode);
