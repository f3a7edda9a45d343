// The framework's answer to the messages that the saver leaves to it: input ends the full run.
#include <cstdlib>

#include "host/windows/framework/displayState.h"
#include "host/windows/framework/saverWindow.h"
#include "host/windows/pausableTimer.h"

namespace {

// How far the pointer may stray from where it was first seen, in pixels: a desk that shakes ends nothing.
constexpr int pointerTolerance = 4;

// Where the pointer was when the full run first saw it.
class FirstPointerPosition {
 public:
  // True when the pointer has left its first position's neighbourhood. Screen or client coordinates, but
  // always the same.
  bool hasLeft(POINT position) {
    if (!m_known) {
      m_first = position;
      m_known = true;
    }
    return std::abs(position.x - m_first.x) > pointerTolerance ||
           std::abs(position.y - m_first.y) > pointerTolerance;
  }
  void forget() { m_known = false; }

 private:
  POINT m_first{};
  bool m_known = false;
};

FirstPointerPosition firstPointerPosition;

bool isPreview(HWND window) {
  return (GetWindowLongPtrA(window, GWL_STYLE) & WS_CHILD) != 0;
}

POINT pointerOf(LPARAM lParam) {
  return {static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))};
}

// Whether somebody is there: a key, a button, the wheel, a pointer that really moved.
bool isInput(UINT message, LPARAM lParam) {
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_XBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      return true;
    case WM_MOUSEMOVE:
      return firstPointerPosition.hasLeft(pointerOf(lParam));
    default:
      return false;
  }
}

// Whether the screen is not the saver's any more: another window came to the front, the monitors were changed
// under it, the machine woke up for somebody.
bool takesTheScreenAway(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_ACTIVATE:
      return LOWORD(wParam) == WA_INACTIVE;
    case WM_ACTIVATEAPP:
      return wParam == FALSE;
    case WM_DISPLAYCHANGE:
      return true;
    case WM_POWERBROADCAST:
      return wParam == PBT_APMRESUMESUSPEND;
    default:
      return false;
  }
}

// System commands that would start a second saver over this one or lead away from it.
bool isRefusedCommand(WPARAM wParam) {
  const WPARAM command = wParam & 0xFFF0;  // the low four bits are the system's own
  return command == SC_SCREENSAVE || command == SC_NEXTWINDOW || command == SC_PREVWINDOW;
}

LRESULT answerInFullRun(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SETCURSOR) {
    SetCursor(nullptr);
    return TRUE;
  }
  if (message == WM_SYSCOMMAND && isRefusedCommand(wParam)) {
    return 0;
  }
  if (message == WM_POWERBROADCAST) {
    followDisplayState(wParam, lParam);
  }
  if (isInput(message, lParam) || takesTheScreenAway(message, wParam)) {
    PostMessageA(window, WM_CLOSE, 0, 0);
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

LRESULT WINAPI DefScreenSaverProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DESTROY:
      firstPointerPosition.forget();
      pausableTimer::forget();
      PostQuitMessage(0);
      return 0;
    case WM_ENDSESSION:
      if (wParam != FALSE) {
        SendMessageA(window, WM_CLOSE, 0, 0);  // at once: the process may end when this returns
      }
      return 0;
    default:
      return isPreview(window) ? DefWindowProcA(window, message, wParam, lParam)
                               : answerInFullRun(window, message, wParam, lParam);
  }
}
