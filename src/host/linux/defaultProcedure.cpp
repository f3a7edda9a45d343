// The framework's answer to the messages that the saver leaves to it: input ends a run of our own.
#include <cstdlib>

#include "host/linux/keys.h"
#include "host/linux/messagePump.h"

namespace {

// How far the pointer may stray from where it was first seen, in pixels: a desk that shakes ends nothing.
constexpr int pointerTolerance = 4;

int lowCoordinateOf(LPARAM lParam) {
  return static_cast<std::int16_t>(lParam & 0xFFFF);
}

int highCoordinateOf(LPARAM lParam) {
  return static_cast<std::int16_t>((lParam >> 16) & 0xFFFF);
}

bool pointerHasLeft(MessagePump::PointerStart& start, WPARAM wParam, LPARAM lParam) {
  const int x = lowCoordinateOf(lParam);
  const int y = highCoordinateOf(lParam);
  if (!start.isKnown || wParam == pointerWasPut) {
    start = {true, x, y};
  }
  return std::abs(x - start.x) > pointerTolerance || std::abs(y - start.y) > pointerTolerance;
}

bool endsFullRun(MessagePump& pump, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_KEYDOWN:
    case WM_LBUTTONDOWN:
    case WM_MOUSEWHEEL:
      return true;
    case WM_MOUSEMOVE:
      return pointerHasLeft(pump.pointerStart, wParam, lParam);
    default:
      return false;
  }
}

bool endsRun(MessagePump& pump, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (pump.kind()) {
    case WindowKind::fullRun:
      return endsFullRun(pump, message, wParam, lParam);
    case WindowKind::ordinary:
      return message == WM_KEYDOWN && (wParam == keyEscape || wParam == keyQ);
    case WindowKind::foreign:
      return false;
  }
  return false;
}

}  // namespace

extern "C" LRESULT XPL_CALLBACK DefScreenSaverProc(xplWindowHandle, UINT message, WPARAM wParam,
                                                   LPARAM lParam) {
  MessagePump* pump = MessagePump::current();
  if (pump == nullptr) {
    return 0;
  }
  if (message == WM_CLOSE) {
    pump->destroyWindow();
  } else if (message == WM_DESTROY) {
    pump->quit();
  } else if (endsRun(*pump, message, wParam, lParam)) {
    pump->post(WM_CLOSE);
  }
  return 0;
}
