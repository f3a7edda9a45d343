// Implements the look into the message queue, and the plain windows.
#include "host/windows/messageQueue.h"

int takePosted(HWND window, UINT message) {
  int count = 0;
  for (MSG taken{}; PeekMessageA(&taken, window, message, message, PM_REMOVE);) {
    ++count;
  }
  return count;
}

PlainWindow::PlainWindow(WNDPROC procedure, HWND parent)
    : m_window(CreateWindowExA(0, "STATIC", "", parent ? WS_CHILD : WS_POPUP, 0, 0, 100, 80, parent, nullptr,
                               GetModuleHandleA(nullptr), nullptr)) {
  SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

PlainWindow::~PlainWindow() {
  if (IsWindow(m_window)) {
    SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DefWindowProcA));
    DestroyWindow(m_window);
  }
}
