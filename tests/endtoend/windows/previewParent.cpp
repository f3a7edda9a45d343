// A window of another program, in which a preview is to run. It prints its handle and obeys lines on its
// input: "child" prints the class, rectangle and visibility of the saver that lives in it, and whether it
// answers; "close" ends it in order, "abort" at once. With the argument "desktop" the window is the
// desktop's, and "close" closes the saver's window in it.
#include <cstdio>
#include <iostream>
#include <string>
#include <thread>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

constexpr int clientWidth = 152;
constexpr int clientHeight = 112;

LRESULT CALLBACK parentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) {
    PostQuitMessage(0);
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

HWND makeParent() {
  WNDCLASSA description{};
  description.lpfnWndProc = parentProcedure;
  description.hInstance = GetModuleHandleA(nullptr);
  description.lpszClassName = "LunariaPreviewParent";
  description.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  RegisterClassA(&description);
  return CreateWindowExA(0, description.lpszClassName, "Lunaria preview parent", WS_POPUP | WS_VISIBLE, 20,
                         30, clientWidth, clientHeight, nullptr, nullptr, description.hInstance, nullptr);
}

HWND saverIn(HWND parent) {
  return FindWindowExA(parent, nullptr, "WindowsScreenSaverClass", nullptr);
}

bool answers(HWND window) {
  constexpr UINT patience = 5000;  // milliseconds
  DWORD_PTR result = 0;
  return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, patience, &result) != 0;
}

void describeChild(HWND parent) {
  HWND child = saverIn(parent);
  if (!child) {
    std::puts("none");
  } else {
    RECT area{};
    GetWindowRect(child, &area);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&area), 2);
    std::printf("%ld,%ld %ldx%ld %s %s\n", area.left, area.top, area.right - area.left,
                area.bottom - area.top, IsWindowVisible(child) ? "visible" : "hidden",
                answers(child) ? "alive" : "hung");
  }
  std::fflush(stdout);
}

void obey(HWND parent) {
  for (std::string line; std::getline(std::cin, line);) {
    if (line.rfind("child", 0) == 0) {
      describeChild(parent);
    } else if (line.rfind("abort", 0) == 0) {
      TerminateProcess(GetCurrentProcess(), 3);
    } else {
      break;
    }
  }
}

void runMessages() {
  MSG message{};
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    DispatchMessageA(&message);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const bool onDesktop = argc > 1 && std::string(argv[1]) == "desktop";
  HWND parent = onDesktop ? GetDesktopWindow() : makeParent();
  std::printf("%llu\n", static_cast<unsigned long long>(reinterpret_cast<ULONG_PTR>(parent)));
  std::fflush(stdout);
  if (onDesktop) {
    obey(parent);
    PostMessageA(saverIn(parent), WM_CLOSE, 0, 0);
    return 0;
  }
  std::thread listener([parent] {
    obey(parent);
    PostMessageA(parent, WM_CLOSE, 0, 0);
  });
  runMessages();
  listener.join();
  return 0;
}
