// A window that is not on the screen yet begins with what the screen shows at its place.
#include <memory>

#include <gtest/gtest.h>

#include "graphics/window.h"
#include "graphics/windows/gdi.h"
#include "harness/privateFolders.h"
#include "windowharness/testWindow.h"

namespace {

constexpr int left = 50;
constexpr int top = 60;
constexpr int width = 64;
constexpr int height = 48;
constexpr xplColor desktopLeft(200, 120, 40);
constexpr xplColor desktopRight(20, 160, 220);
constexpr xplColor band(5, 5, 16);

class UnshownWindow : public PrivateFolders {
 protected:
  UnshownWindow() {
    xplWindow below(m_below.handle());
    below.setUseBackBuffer(false);
    below.fillRect(xplRect<int>(0, 0, width, height), desktopLeft);
    below.fillRect(xplRect<int>(0, width / 2, width / 2, height), desktopRight);
    // Above it and not shown.
    m_above = CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TOPMOST, "LunariaTestWindow", "",
                              WS_POPUP, left, top, width, height, nullptr, nullptr, GetModuleHandleA(nullptr),
                              nullptr);
  }
  ~UnshownWindow() override { DestroyWindow(m_above); }

  // Until the screen has what was drawn on the window below; false where it takes 10 seconds.
  static bool desktopIsOnScreen() {
    for (int wait = 0; wait < 200; ++wait) {
      MSG message{};
      while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        DispatchMessageA(&message);
      }
      GdiFlush();
      const HDC screen = GetDC(nullptr);
      const COLORREF pixel = GetPixel(screen, left + width - 1, top + height - 1);
      ReleaseDC(nullptr, screen);
      if (pixel == RGB(desktopRight.red(), desktopRight.green(), desktopRight.blue())) {
        return true;
      }
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
    }
    return false;
  }
  // Every pixel outside the rows [0, bandRows) is the desktop's.
  static void expectDesktop(xplWindow& window, int bandRows) {
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const xplColor desktop = x < width / 2 ? desktopLeft : desktopRight;
        ASSERT_EQ((y < bandRows ? band : desktop).value(), window.getPixel(x, y).value()) << x << ", " << y;
      }
    }
  }

  HWND above() { return m_above; }

 private:
  TestWindow m_below{width, height, left, top};
  HWND m_above = nullptr;
};

TEST_F(UnshownWindow, HasTheScreenInItsBackBuffer) {
  ASSERT_TRUE(desktopIsOnScreen());
  xplWindow window(above());
  expectDesktop(window, 0);
}

TEST_F(UnshownWindow, ShowsTheScreenUnderTheFirstDrawingStraightToIt) {
  ASSERT_TRUE(desktopIsOnScreen());
  xplWindow window(above());
  window.setUseBackBuffer(false);
  ShowWindow(above(), SW_SHOWNOACTIVATE);
  window.fillRect(xplRect<int>(0, 0, width, 5), band);
  expectDesktop(window, 5);
}

TEST_F(UnshownWindow, ShowsItOnce) {
  ASSERT_TRUE(desktopIsOnScreen());
  xplWindow window(above());
  window.setUseBackBuffer(false);
  ShowWindow(above(), SW_SHOWNOACTIVATE);
  window.fillRect(xplRect<int>(0, 0, width, 5), band);
  window.fillRect(xplRect<int>(5, 0, width, 5), band);
  expectDesktop(window, 10);
}

TEST_F(UnshownWindow, IsNotGivenTheScreenAgainAfterAFlush) {
  ASSERT_TRUE(desktopIsOnScreen());
  xplWindow window(above());
  ShowWindow(above(), SW_SHOWNOACTIVATE);
  window.flush();
  window.fillRect(xplRect<int>(0, 0, width, height), band);
  window.setUseBackBuffer(false);
  window.fillRect(xplRect<int>(0, 0, width, 5), band);
  expectDesktop(window, 5);
}

}  // namespace
