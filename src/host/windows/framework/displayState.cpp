// Implements the following of the display's state.
#include "host/windows/framework/displayState.h"

#include <cstring>

#include "host/windows/pausableTimer.h"

namespace {

// GUID_CONSOLE_DISPLAY_STATE, which not every toolchain's library holds:
// 6fe69556-704a-47a0-8f24-c28d936fda47.
constexpr GUID consoleDisplayState{
    0x6fe69556, 0x704a, 0x47a0, {0x8f, 0x24, 0xc2, 0x8d, 0x93, 0x6f, 0xda, 0x47}};
// Its data; 1 stands for on, 2 for dimmed.
constexpr DWORD displayIsOff = 0;

}  // namespace

DisplayNotification::DisplayNotification(HWND window) {
  if (GetSystemMetrics(SM_REMOTESESSION) == 0) {
    m_registration =
        RegisterPowerSettingNotification(window, &consoleDisplayState, DEVICE_NOTIFY_WINDOW_HANDLE);
  }
}

DisplayNotification::~DisplayNotification() {
  if (m_registration) {
    UnregisterPowerSettingNotification(m_registration);
  }
}

void followDisplayState(WPARAM wParam, LPARAM lParam) {
  if (wParam != PBT_POWERSETTINGCHANGE || lParam == 0) {
    return;
  }
  const auto& setting = *reinterpret_cast<const POWERBROADCAST_SETTING*>(lParam);
  DWORD state = 0;
  if (!IsEqualGUID(setting.PowerSetting, consoleDisplayState) || setting.DataLength != sizeof(state)) {
    return;
  }
  std::memcpy(&state, setting.Data, sizeof(state));
  if (state == displayIsOff) {
    pausableTimer::pause();
  } else {
    pausableTimer::resume();
  }
}
