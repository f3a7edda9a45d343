// The seam of the graphics layer: what a platform supplies to it, and under which common names.
//
// Whoever writes the next platform supplies:
// - its rectangle type and its drawing target (xplDeviceContextOf), and drawing tools derived from
// xpliDrawingTools;
// - a window class derived from xplWindowBase that fills every slot but those of xplWindow; it is made from a
// native
//   handle (xplWindowHandle), owns the back buffer, and gives its present target with currentTarget();
// - an image class derived from xplImageBase that fills every slot but those of xplImage, and that measures
// texts for its own target (getTextSize).
// Pixels are what counts: fills, ellipses, lines, blits and the scaler give the same ones on every platform.
#pragma once

#if defined(_WIN32)
#include "graphics/windows/imageWin.h"
#include "graphics/windows/windowWin.h"
using xplWindowPlatform = xplWindowWin;
using xplImagePlatform = xplImageWin;
using xplDrawingToolsPlatform = xplDrawingToolsWinDC;
#else
#include "graphics/linux/imageLinux.h"
#include "graphics/linux/windowLinux.h"
using xplWindowPlatform = xplWindowLinux;
using xplImagePlatform = xplImageLinux;
using xplDrawingToolsPlatform = xplDrawingToolsLinux;
#endif
