// The names of the window messages on Windows: the platform's own.
#pragma once

#include "graphics/windows/gdi.h"

#define XPL_CALLBACK CALLBACK

using xplPaintData = PAINTSTRUCT;
