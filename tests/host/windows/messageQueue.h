// Looks into the message queue of a window of this thread.
#pragma once

#include "graphics/windows/gdi.h"

// Takes every message of this kind for the window out of the queue; how many there were.
int takePosted(HWND window, UINT message);

// A window of its own, gone with the object. Its messages are answered by the given procedure.
class PlainWindow {
 public:
  // parent: null for a top-level popup. The window is not shown.
  explicit PlainWindow(WNDPROC procedure, HWND parent = nullptr);
  ~PlainWindow();
  PlainWindow(const PlainWindow&) = delete;
  PlainWindow& operator=(const PlainWindow&) = delete;

  HWND handle() const { return m_window; }

 private:
  HWND m_window;
};
