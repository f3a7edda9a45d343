// Turns the framework's window messages into calls on the one screen saver object.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/platform.h"
#include "host/screenSaverInterface.h"

// The window procedure that the framework calls, on one thread. Messages that it does not handle go to
// DefScreenSaverProc. What the object throws while it is initialised is logged; elsewhere exceptions pass
// through.
extern "C" LRESULT XPL_CALLBACK ScreenSaverProc(xplWindowHandle window, UINT message, WPARAM wParam,
                                                LPARAM lParam);

// What the procedure keeps for the whole process. Touched only on the window's thread.
namespace windowProcedure {

// The one screen saver object: made by the first WM_CREATE, deleted by WM_DESTROY.
extern std::unique_ptr<xplScreenSaverInterface> screensaverPtr;
// What xplStartTimer returned; 0 while no timer runs.
extern std::uintptr_t timerId;
// True while WM_PAINT is handled; a tick that arrives then is skipped.
extern bool paintingNow;
// Set after the first initialisation, whether it threw or not: there is no second one in a process.
extern bool initializedOnce;

using MakeScreenSaver = std::unique_ptr<xplScreenSaverInterface> (*)();
using Procedure = LRESULT(XPL_CALLBACK*)(xplWindowHandle, UINT, WPARAM, LPARAM);

// What WM_CREATE calls for the object (null: there is none, for want of memory), and where unhandled messages
// go. Tests put others in their place.
extern MakeScreenSaver makeScreenSaver;
extern Procedure defaultProcedure;

// A noctisScreensaver, or null for want of memory.
std::unique_ptr<xplScreenSaverInterface> makeNoctisScreensaver();
// The same for a run that leaves the sounds and the usage report to another that runs beside it. A framework
// that starts such a run puts it into makeScreenSaver before WM_CREATE.
std::unique_ptr<xplScreenSaverInterface> makeQuietScreensaver();

// -1 (the preview) or 0 (the normal run), by the program's arguments, its own name first.
std::int32_t monitorIdFor(const std::vector<std::string>& arguments);

}  // namespace windowProcedure
