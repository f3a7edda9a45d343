// Implements the timer that can be held back.
#include "host/windows/pausableTimer.h"

namespace {

struct Timer {
  HWND window = nullptr;
  std::uintptr_t id = 0;  // 0: none
  unsigned period = 0;    // milliseconds
};

Timer current;
bool paused = false;

}  // namespace

namespace pausableTimer {

std::uintptr_t start(HWND window, std::uintptr_t wantedId, unsigned milliseconds) {
  const std::uintptr_t id = SetTimer(window, wantedId, milliseconds, nullptr);
  current = {window, id, milliseconds};
  if (paused) {
    KillTimer(window, id);
  }
  return id;
}

void stop(HWND window, std::uintptr_t id) {
  KillTimer(window, id);
  if (window == current.window && id == current.id) {
    current = {};
  }
}

void pause() {
  if (!paused && current.id != 0) {
    KillTimer(current.window, current.id);
  }
  paused = true;
}

void resume() {
  if (paused && current.id != 0) {
    SetTimer(current.window, current.id, current.period, nullptr);
  }
  paused = false;
}

void forget() {
  current = {};
  paused = false;
}

}  // namespace pausableTimer
