// Tells a window, by its title, what Windows tells of the display: that it is off (0), on (1) or dimmed (2).
// Usage: display_state TITLE STATE. Exit code 0 when the window has taken it.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

constexpr GUID displayState{0x6fe69556, 0x704a, 0x47a0, {0x8f, 0x24, 0xc2, 0x8d, 0x93, 0x6f, 0xda, 0x47}};
constexpr UINT patience = 5000;  // milliseconds

int fail(const char* call) {
  std::fprintf(stderr, "%s: error %lu\n", call, GetLastError());
  return 1;
}

// The message carries an address, which must be one in the window's own process.
void* placeIn(HANDLE process, DWORD state) {
  std::array<char, sizeof(POWERBROADCAST_SETTING) + sizeof(state)> bytes{};
  POWERBROADCAST_SETTING head{};
  head.PowerSetting = displayState;
  head.DataLength = sizeof(state);
  std::memcpy(bytes.data(), &head, sizeof(head));
  std::memcpy(bytes.data() + offsetof(POWERBROADCAST_SETTING, Data), &state, sizeof(state));
  void* place = VirtualAllocEx(process, nullptr, bytes.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  return place && WriteProcessMemory(process, place, bytes.data(), bytes.size(), nullptr) ? place : nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    return 2;
  }
  HWND window = FindWindowA(nullptr, argv[1]);
  DWORD processId = 0;
  if (!window || !GetWindowThreadProcessId(window, &processId)) {
    return fail("FindWindow");
  }
  HANDLE process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, processId);
  void* place = process ? placeIn(process, static_cast<DWORD>(std::strtoul(argv[2], nullptr, 10))) : nullptr;
  if (!place) {
    return fail("writing into the process");
  }
  DWORD_PTR result = 0;
  const LRESULT taken =
      SendMessageTimeoutA(window, WM_POWERBROADCAST, PBT_POWERSETTINGCHANGE, reinterpret_cast<LPARAM>(place),
                          SMTO_ABORTIFHUNG, patience, &result);
  VirtualFreeEx(process, place, 0, MEM_RELEASE);
  CloseHandle(process);
  return taken != 0 ? 0 : fail("SendMessageTimeout");
}
