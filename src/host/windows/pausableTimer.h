// The timer of the saver's window, which can be held back for a while without the saver's knowledge.
#pragma once

#include <cstdint>

#include "graphics/windows/gdi.h"

// One timer for the whole process, that of the window which started it last; on the window's thread alone.
// All but starting bear a window that has gone.
namespace pausableTimer {

// Makes WM_TIMER arrive every so many milliseconds, or later: as soon as the pause ends. Returns the id, 0
// where there is no timer.
std::uintptr_t start(HWND window, std::uintptr_t wantedId, unsigned milliseconds);
void stop(HWND window, std::uintptr_t id);

// No WM_TIMER comes until resume(). Ticks of that time are lost, not made up for. Either may come twice.
void pause();
void resume();
// Ends a pause without bringing back what it held: the window goes.
void forget();

}  // namespace pausableTimer
