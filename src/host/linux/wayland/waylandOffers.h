// Whether a compositor offers what the saver needs, and the picture that its outputs make room for.
#pragma once

#include <string>

#include "host/linux/commandLine.h"
#include "host/linux/wayland/outputLayout.h"
#include "host/linux/wayland/waylandGlobals.h"
#include "host/linux/windowKind.h"

// display: the compositor's name, for the user. Both throw HostFailure.

// Throws where the compositor lacks what a window of this kind cannot do without.
void checkOffers(const WaylandGlobals& globals, WindowKind kind, const std::string& display);
// Throws where a full run finds no output.
OutputLayout layoutOf(const WaylandGlobals& globals, const HostRequest& request, const std::string& display);
