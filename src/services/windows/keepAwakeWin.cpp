// Implements the request to stay awake on Windows.
#include "services/windows/keepAwakeWin.h"

#include "services/platform.h"

namespace {

// Deliberate: without ES_CONTINUOUS the request resets the platform's idle timers once and leaves no lasting
// state, so that there is none to clear when the saver ends, however it ends. Do not add the flag.
constexpr EXECUTION_STATE stayAwake = ES_SYSTEM_REQUIRED | ES_DISPLAY_REQUIRED | ES_AWAYMODE_REQUIRED;
static_assert(stayAwake == 67);

}  // namespace

std::unique_ptr<xpliKeepAwake> xplMakeKeepAwake() {
  return std::make_unique<KeepAwakeWin>(SetThreadExecutionState);
}

bool KeepAwakeWin::request() {
  return m_setState(stayAwake) != 0;
}
