// The tests' window on Windows: a popup with a memory of its own, so that what is drawn on it can be read
// back.
#include "graphics/windows/gdi.h"
#include "windowharness/testWindow.h"

namespace {

constexpr const char* className = "LunariaTestWindow";

void registerClass() {
  WNDCLASSA definition{};
  definition.style = CS_OWNDC;
  definition.lpfnWndProc = DefWindowProcA;
  definition.hInstance = GetModuleHandleA(nullptr);
  definition.lpszClassName = className;
  definition.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
  RegisterClassA(&definition);  // fails when it is registered already, which is as good
}

}  // namespace

struct TestWindow::Native {
  HWND window = nullptr;
};

TestWindow::TestWindow(int width, int height, int left, int top) : m_native(std::make_unique<Native>()) {
  registerClass();
  m_native->window = CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, className, "", WS_POPUP, left, top,
                                     width, height, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
  ShowWindow(m_native->window, SW_SHOWNOACTIVATE);
  UpdateWindow(m_native->window);
  const HDC context = GetDC(m_native->window);
  const RECT all = {0, 0, width, height};
  FillRect(context, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  ReleaseDC(m_native->window, context);
}

TestWindow::~TestWindow() {
  DestroyWindow(m_native->window);
}

xplWindowHandle TestWindow::handle() {
  return m_native->window;
}

xplColor TestWindow::shownPixel(int x, int y) {
  const HDC context = GetDC(m_native->window);
  const COLORREF pixel = GetPixel(context, x, y);
  ReleaseDC(m_native->window, context);
  return {GetRValue(pixel), GetGValue(pixel), GetBValue(pixel)};
}
