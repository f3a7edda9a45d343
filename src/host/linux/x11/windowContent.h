// Reads back what a window shows.
#pragma once

#include "graphics/linux/pixelMemory.h"
#include "host/linux/x11/pixelFormat.h"
#include "host/linux/x11/x11Connection.h"

// Copies the window's top left part, of the memory's size, into the memory; what covers the window is copied
// with it. Where the display does not give it (a window that is not shown or sticks out of the screen) the
// memory becomes black.
void copyWindowContent(X11Connection& connection, xcb_window_t window, const PixelFormat& format,
                       PixelMemory& memory);
