// The window of a run, full screen or inside a preview pane, and its message loop.
#pragma once

#include "graphics/windows/gdi.h"

// What the program hands to the framework, and what the framework offers to it.
extern "C" {
LRESULT WINAPI ScreenSaverProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT WINAPI DefScreenSaverProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
}

// Registers the class of both kinds of window; false where the system refuses.
bool registerSaverClass(HINSTANCE instance);

// A topmost window over the whole virtual screen, already visible and in the foreground; null on failure.
HWND makeFullRunWindow(HINSTANCE instance);

// A child that fills the client area of a window of another program; null on failure, a parent that is no
// window among others.
HWND makePreviewWindow(HINSTANCE instance, HWND parent);

// Runs the messages until the window has gone. parent: a preview ends when this one is no window any more;
// null for the full run. Returns the program's exit code.
int runMessages(HWND window, HWND parent);
