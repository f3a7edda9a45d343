// A window of another program, in which a preview is to run. It prints its handle and obeys lines on its
// input: "child" prints the class, rectangle and visibility of what lives in it, "close" ends it in order,
// "abort" at once.
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

void describeChild(HWND parent) {
  HWND child = GetWindow(parent, GW_CHILD);
  if (!child) {
    std::puts("none");
  } else {
    char name[64] = "";
    GetClassNameA(child, name, sizeof(name));
    RECT area{};
    GetWindowRect(child, &area);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&area), 2);
    std::printf("%s %ld,%ld %ldx%ld %s\n", name, area.left, area.top, area.right - area.left,
                area.bottom - area.top, IsWindowVisible(child) ? "visible" : "hidden");
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
  PostMessageA(parent, WM_CLOSE, 0, 0);
}

}  // namespace

int main() {
  HWND parent = makeParent();
  std::printf("%llu\n", static_cast<unsigned long long>(reinterpret_cast<ULONG_PTR>(parent)));
  std::fflush(stdout);
  std::thread listener(obey, parent);
  MSG message{};
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    DispatchMessageA(&message);
  }
  listener.join();
  return 0;
}
