// Whether the display shows anything: told by Windows, and kept from drawing for nobody.
#pragma once

#include "graphics/windows/gdi.h"

// Asks Windows to tell the window, as WM_POWERBROADCAST, when the console's display goes off, dims and comes
// back; it tells the present state at once. Where it cannot, or in a remote session, whose display is
// another, the window is told nothing and draws always.
class DisplayNotification {
 public:
  // window: must live as long as this.
  explicit DisplayNotification(HWND window);
  ~DisplayNotification();
  DisplayNotification(const DisplayNotification&) = delete;
  DisplayNotification& operator=(const DisplayNotification&) = delete;

 private:
  HPOWERNOTIFY m_registration = nullptr;
};

// Takes what WM_POWERBROADCAST brings: while the display is off the window's timer is held back, and goes on
// where it was when it is on or dimmed. Anything else is left alone.
void followDisplayState(WPARAM wParam, LPARAM lParam);
