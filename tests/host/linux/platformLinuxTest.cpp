// Tests what the host's seam gives on Linux.
#include <gtest/gtest.h>

#include "graphics/linux/memoryWindow.h"
#include "host/linux/messagePump.h"
#include "host/linux/windowTimers.h"
#include "host/platform.h"

namespace {

LRESULT ignore(xplWindowHandle, UINT, WPARAM, LPARAM) {
  return 0;
}

TEST(PlatformLinux, MonitorsAreThoseOfTheWindow) {
  MemoryWindow window({0, 0, 30, 10}, {{20, 1, 30, 9}, {0, 0, 20, 10}});
  std::vector<xplRect<int>> monitors{{1, 2, 3, 4}};
  EXPECT_TRUE(xplEnumerateMonitors(&window, monitors));
  ASSERT_EQ(monitors.size(), 3U);
  EXPECT_EQ(monitors[0].top, 1);
  EXPECT_EQ(monitors[1].left, 20);
  EXPECT_EQ(monitors[1].top, 1);
  EXPECT_EQ(monitors[1].getRight(), 30);
  EXPECT_EQ(monitors[1].getBottom(), 9);
  EXPECT_EQ(monitors[2].getRight(), 20);
}

TEST(PlatformLinux, WithoutAWindowOrMonitorsTheEnumerationFails) {
  std::vector<xplRect<int>> monitors;
  MemoryWindow window({0, 0, 30, 10}, {});
  EXPECT_FALSE(xplEnumerateMonitors(nullptr, monitors));
  EXPECT_FALSE(xplEnumerateMonitors(&window, monitors));
  EXPECT_TRUE(monitors.empty());
}

TEST(PlatformLinux, TheHandlesNumberIsTheWindowsId) {
  MemoryWindow window({0, 0, 30, 10}, {});
  EXPECT_EQ(xplHandleNumber(&window), window.id());
  EXPECT_EQ(xplHandleNumber(nullptr), 0U);
}

TEST(PlatformLinux, ThereIsNoNotepad) {
  EXPECT_EQ(xplFindNotepadWindow(), 0U);
}

TEST(PlatformLinux, TimersStartAndStop) {
  EXPECT_EQ(xplStartTimer(nullptr, 7, 40), 7U);
  EXPECT_EQ(windowTimers().all().size(), 1U);
  xplStopTimer(nullptr, 8);
  EXPECT_EQ(windowTimers().all().size(), 1U);
  xplStopTimer(nullptr, 7);
  EXPECT_TRUE(windowTimers().all().empty());
}

TEST(PlatformLinux, APaintScopeAnswersTheInvalidation) {
  // The display that shows the paint ends the run when no more of them is wanted.
  struct Display : DisplayLink {
    int descriptor() const override { return -1; }
    void collect() override {
      if (paints > 0 && ++rounds == 2) {
        MessagePump::current()->quit();
      }
    }
    bool mayPaint() override { return true; }
    void flush() override {}
    static int& paintCount() {
      static int count = 0;
      return count;
    }
    int& paints = paintCount();
    int rounds = 0;
  } display;
  MemoryWindow window({0, 0, 30, 10}, {});
  MessagePump pump(&window, WindowKind::fullRun, [](xplWindowHandle handle, UINT message, WPARAM, LPARAM) {
    if (message == WM_PAINT) {
      const xplPaintScope scope(handle);
      ++Display::paintCount();
      MessagePump::current()->post(0x0400);
    }
    return LRESULT{0};
  });
  xplInvalidateClientArea(&window);
  pump.run(display);
  EXPECT_EQ(display.paints, 1);
}

TEST(PlatformLinux, CallsWithoutAPumpAreBorne) {
  MemoryWindow window({0, 0, 30, 10}, {});
  xplInvalidateClientArea(&window);
  const xplPaintScope scope(&window);
  EXPECT_EQ(MessagePump::current(), nullptr);
  const MessagePump pump(&window, WindowKind::fullRun, ignore);
  EXPECT_EQ(MessagePump::current(), &pump);
}

}  // namespace
