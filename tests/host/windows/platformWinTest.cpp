// Tests the host's seam on Windows: timers, repaints, paints, monitors, handles.
#include <gtest/gtest.h>

#include "host/platform.h"
#include "host/windows/messageQueue.h"

namespace {

class HostPlatform : public testing::Test {
 protected:
  HostPlatform() {
    ShowWindow(window.handle(), SW_SHOWNA);
    ValidateRect(window.handle(), nullptr);
  }

  PlainWindow window{DefWindowProcA};
};

TEST_F(HostPlatform, ATimerTicksUnderItsIdUntilItIsStopped) {
  const auto id = xplStartTimer(window.handle(), 1, 40);
  ASSERT_NE(id, 0U);
  MSG message{};
  ASSERT_GT(GetMessageA(&message, window.handle(), WM_TIMER, WM_TIMER), 0);
  EXPECT_EQ(message.wParam, id);
  xplStopTimer(window.handle(), id);
  takePosted(window.handle(), WM_TIMER);
  EXPECT_FALSE(KillTimer(window.handle(), id));
}

TEST_F(HostPlatform, ATimerOfAWindowThatHasGoneDoesNotStart) {
  DestroyWindow(window.handle());
  EXPECT_EQ(xplStartTimer(window.handle(), 1, 40), 0U);
  xplStopTimer(window.handle(), 1);
  xplInvalidateClientArea(window.handle());
}

TEST_F(HostPlatform, ARepaintCoversTheClientAreaAndErasesNothing) {
  xplInvalidateClientArea(window.handle());
  RECT dirty{};
  ASSERT_TRUE(GetUpdateRect(window.handle(), &dirty, FALSE));
  RECT client{};
  GetClientRect(window.handle(), &client);
  EXPECT_TRUE(EqualRect(&dirty, &client));
  PAINTSTRUCT paint{};
  BeginPaint(window.handle(), &paint);
  EXPECT_FALSE(paint.fErase);
  EndPaint(window.handle(), &paint);
}

TEST_F(HostPlatform, AfterAPaintTheWindowIsClean) {
  xplInvalidateClientArea(window.handle());
  { const xplPaintScope scope(window.handle()); }
  EXPECT_FALSE(GetUpdateRect(window.handle(), nullptr, FALSE));
}

TEST_F(HostPlatform, TheMonitorsCoverTheMainOne) {
  std::vector<xplRect<int>> monitors;
  ASSERT_TRUE(xplEnumerateMonitors(window.handle(), monitors));
  EXPECT_EQ(monitors.size(), static_cast<std::size_t>(GetSystemMetrics(SM_CMONITORS)));
  bool mainFound = false;
  for (const auto& monitor : monitors) {
    mainFound = mainFound || (monitor.left == 0 && monitor.top == 0 &&
                              monitor.getRight() == GetSystemMetrics(SM_CXSCREEN) &&
                              monitor.getBottom() == GetSystemMetrics(SM_CYSCREEN));
  }
  EXPECT_TRUE(mainFound);
}

TEST_F(HostPlatform, MonitorsAreAppended) {
  std::vector<xplRect<int>> monitors{xplRect<int>(1, 2, 3, 4)};
  ASSERT_TRUE(xplEnumerateMonitors(nullptr, monitors));
  ASSERT_GE(monitors.size(), 2U);
  EXPECT_EQ(monitors[0].left, 2);
}

TEST_F(HostPlatform, AHandlesNumberIsItsValue) {
  EXPECT_EQ(xplHandleNumber(nullptr), 0U);
  EXPECT_EQ(xplHandleNumber(window.handle()), reinterpret_cast<std::uintptr_t>(window.handle()));
}

TEST_F(HostPlatform, TheNotepadWindowIsFoundByItsClass) {
  if (FindWindowA("Notepad", nullptr)) {
    GTEST_SKIP() << "a Notepad runs already";
  }
  EXPECT_EQ(xplFindNotepadWindow(), 0U);
  WNDCLASSA description{};
  description.lpfnWndProc = DefWindowProcA;
  description.hInstance = GetModuleHandleA(nullptr);
  description.lpszClassName = "Notepad";
  ASSERT_NE(RegisterClassA(&description), 0);
  HWND notepad = CreateWindowExA(0, "Notepad", "any title", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                 description.hInstance, nullptr);
  EXPECT_EQ(xplFindNotepadWindow(), reinterpret_cast<std::uintptr_t>(notepad));
  DestroyWindow(notepad);
  UnregisterClassA("Notepad", description.hInstance);
}

}  // namespace
