// Gives the screen another size, as the system's display settings do: every window is told of it.
// Usage: change_resolution WIDTH HEIGHT. Exit code 0 when the system has taken it.
#include <cstdio>
#include <cstdlib>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

int main(int argc, char** argv) {
  if (argc != 3) {
    return 2;
  }
  DEVMODEA mode{};
  mode.dmSize = sizeof(mode);
  mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
  mode.dmPelsWidth = static_cast<DWORD>(std::strtoul(argv[1], nullptr, 10));
  mode.dmPelsHeight = static_cast<DWORD>(std::strtoul(argv[2], nullptr, 10));
  const LONG result = ChangeDisplaySettingsA(&mode, 0);
  if (result != DISP_CHANGE_SUCCESSFUL) {
    std::fprintf(stderr, "ChangeDisplaySettings: %ld\n", result);
    return 1;
  }
  return 0;
}
