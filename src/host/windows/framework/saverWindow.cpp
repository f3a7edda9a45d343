// Makes the windows of the saver and runs their messages.
#include "host/windows/framework/saverWindow.h"

namespace {

constexpr char className[] = "WindowsScreenSaverClass";
constexpr char windowTitle[] = "Lunaria";
constexpr WORD programIcon = 201;
constexpr DWORD silence = 1000;  // milliseconds

HICON loadProgramIcon(HINSTANCE instance) {
  HICON icon = LoadIconA(instance, MAKEINTRESOURCEA(programIcon));
  return icon ? icon : LoadIconA(nullptr, IDI_APPLICATION);
}

// A child of another process's window must measure pixels as its parent does. The calls are looked up, since
// systems before Windows 10 have none of them and nothing to agree on.
void measurePixelsAs(HWND parent) {
  using ContextOf = DPI_AWARENESS_CONTEXT(WINAPI*)(HWND);
  using SetContext = DPI_AWARENESS_CONTEXT(WINAPI*)(DPI_AWARENESS_CONTEXT);
  HMODULE user = GetModuleHandleA("user32.dll");
  if (!user) {
    return;
  }
  const auto contextOf = reinterpret_cast<ContextOf>(
      reinterpret_cast<void*>(GetProcAddress(user, "GetWindowDpiAwarenessContext")));
  const auto setContext = reinterpret_cast<SetContext>(
      reinterpret_cast<void*>(GetProcAddress(user, "SetThreadDpiAwarenessContext")));
  if (contextOf && setContext) {
    setContext(contextOf(parent));
  }
}

}  // namespace

bool registerSaverClass(HINSTANCE instance) {
  WNDCLASSEXA description{};
  description.cbSize = sizeof(description);
  description.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
  description.lpfnWndProc = ScreenSaverProc;
  description.hInstance = instance;
  description.hIcon = loadProgramIcon(instance);
  description.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
  description.lpszClassName = className;
  return RegisterClassExA(&description) != 0;
}

HWND makeFullRunWindow(HINSTANCE instance) {
  HWND window = CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, className, windowTitle,
                                WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                                GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN),
                                GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN),
                                nullptr, nullptr, instance, nullptr);
  if (window) {
    SetForegroundWindow(window);
  }
  return window;
}

HWND makePreviewWindow(HINSTANCE instance, HWND parent) {
  if (!IsWindow(parent)) {
    return nullptr;
  }
  measurePixelsAs(parent);
  RECT area{};
  if (!GetClientRect(parent, &area)) {
    return nullptr;
  }
  return CreateWindowExA(0, className, windowTitle, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, area.right,
                         area.bottom, parent, nullptr, instance, nullptr);
}

int runMessages(HWND window, HWND parent) {
  MSG message{};
  for (;;) {
    // The saver's timer wakes us many times a second; silence means that the window may have gone.
    MsgWaitForMultipleObjects(0, nullptr, FALSE, silence, QS_ALLINPUT);
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) {
        return static_cast<int>(message.wParam);
      }
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
    if (!IsWindow(window)) {
      if (PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        return static_cast<int>(message.wParam);
      }
      // A parent that died took the window with it, and nobody was told.
      ScreenSaverProc(window, WM_DESTROY, 0, 0);
    } else if (parent && !IsWindow(parent)) {
      SendMessageA(window, WM_CLOSE, 0, 0);
    }
  }
}
