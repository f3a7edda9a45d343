// The seam of the host: the window messages and the few calls on a window that the saver needs of its
// platform.
//
// Whoever writes the next platform supplies a framework and what this header declares.
//
// The framework owns the program's entry point. It starts in one of three modes: the full run over the whole
// virtual screen, the preview inside a window that another program owns, the configuration. Before anything
// else it makes the one xplLog ("Lunaria", both copies on), so that everything that follows finds it. For the
// first two modes it makes a window and hands its messages to ScreenSaverProc (windowProcedure.h), all on one
// thread:
// - WM_CREATE once, before any other;
// - WM_ERASEBKGND where the platform wants the background gone; it may come at any time, or never;
// - WM_TIMER with what xplStartTimer returned in wParam; ticks that come late are merged, never queued up,
//   except that a window that nobody can see may get those of a second together, and no paints; none come
//   while the display is off, where the platform tells;
// - WM_PAINT some time after xplInvalidateClientArea, when no tick waits, and when the window is exposed;
// - WM_DISPLAYCHANGE when the answer of xplEnumerateMonitors has changed;
// - WM_CLOSE and then WM_DESTROY, once each, at the end; WM_DESTROY alone where the window was taken away.
//
// The saver's object lives from WM_CREATE to WM_DESTROY; a framework that is told to stop sends both endings,
// since the last steps (the closing lines of the log among them) hang on them.
//
// A message that ScreenSaverProc does not handle, or handles in part, goes to DefScreenSaverProc, which the
// framework supplies too: it ends the full run on input by sending WM_CLOSE, makes WM_CLOSE into WM_DESTROY
// and WM_DESTROY into the end of the message loop, and answers 0 to what it does not know. In the preview
// input ends nothing.
//
// May fail: xplStartTimer (0, the sky then stands still), xplEnumerateMonitors (false), xplFindNotepadWindow
// (0). Nothing that a saver's window calls throws, and all of it must bear a window that has gone in the
// meantime.
#pragma once

#include <cstdint>
#include <vector>

#include "graphics/platform.h"
#include "graphics/rect.h"

// From here come, under these names: UINT, WPARAM, LPARAM, LRESULT; the WM_ messages; XPL_CALLBACK, the
// calling convention of a window procedure; and xplPaintData, what a paint keeps between its begin and its
// end.
#if defined(_WIN32)
#include "host/windows/windowMessages.h"
#else
#include "host/linux/windowMessages.h"
#endif

// The framework's procedure for everything that ScreenSaverProc leaves to it.
extern "C" LRESULT XPL_CALLBACK DefScreenSaverProc(xplWindowHandle window, UINT message, WPARAM wParam,
                                                   LPARAM lParam);

// Makes WM_TIMER arrive at the window every so many milliseconds, under the wanted id or one that the
// platform chooses. A running timer of this id starts anew. Returns the id, 0 where there is no timer.
std::uintptr_t xplStartTimer(xplWindowHandle window, std::uintptr_t wantedId, unsigned milliseconds);
void xplStopTimer(xplWindowHandle window, std::uintptr_t id);

// Asks for a WM_PAINT of the whole client area, without erasing it before.
void xplInvalidateClientArea(xplWindowHandle window);

// What is drawn on the window while one of these lives answers its WM_PAINT: the window counts as painted
// after it.
class xplPaintScope {
 public:
  explicit xplPaintScope(xplWindowHandle window);
  ~xplPaintScope();
  xplPaintScope(const xplPaintScope&) = delete;
  xplPaintScope& operator=(const xplPaintScope&) = delete;

 private:
  // Not every platform needs both.
  [[maybe_unused]] xplWindowHandle m_window;
  [[maybe_unused]] xplPaintData m_data;
};

// The number under which the log shows a window; 0 for none.
std::uintptr_t xplHandleNumber(xplWindowHandle window);
// The number of a top-level window of class "Notepad", whatever its title; 0 where there is none.
std::uintptr_t xplFindNotepadWindow();

// Appends every monitor of the whole virtual screen, in screen coordinates (pixels), in the order in which
// the platform tells them. False where the platform fails; what it told before then stays in the list.
// `window` is one on the screen in question, and may be null.
bool xplEnumerateMonitors(xplWindowHandle window, std::vector<xplRect<int>>& monitors);

// Lets the user edit the settings, in a sheet over `parent` (may be null), and returns when it is closed.
// What fails is told to the user; on Linux by throwing HostFailure, which the program ends with.
void xplShowSettings(xplWindowHandle parent);
