// What the tests of the pump share: a display that is quiet, and the messages that the window's procedure
// got.
#pragma once

#include <functional>
#include <vector>

#include <gtest/gtest.h>
#include <sys/eventfd.h>

#include "graphics/linux/memoryWindow.h"
#include "host/linux/messagePump.h"
#include "host/linux/windowTimers.h"

inline constexpr UINT otherMessage = 0x0400;

// A display that says nothing by itself.
class QuietDisplay : public DisplayLink {
 public:
  int descriptor() const override { return m_wake.get(); }
  void collect() override {
    eventfd_t count = 0;
    ::eventfd_read(m_wake.get(), &count);
    if (onCollect) {
      onCollect();
    }
  }
  bool mayPaint() override { return isShown && !isHidden; }
  bool isSeen() const override { return !isHidden; }
  bool canWaitForTick() const override { return isPatient; }
  void flush() override { ++flushes; }
  // The display has something to say.
  void wake() { ::eventfd_write(m_wake.get(), 1); }

  std::function<void()> onCollect;
  bool isShown = true;
  bool isHidden = false;
  bool isPatient = false;
  int flushes = 0;

 private:
  FileDescriptor m_wake{::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)};
};

struct Handled {
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
  bool operator==(const Handled&) const = default;
};

class MessagePumpTest : public testing::Test {
 protected:
  MessagePumpTest() {
    handled.clear();
    onMessage = nullptr;
  }
  ~MessagePumpTest() override {
    windowTimers().stop(1);
    windowTimers().stop(2);
  }

  static LRESULT procedure(xplWindowHandle, UINT message, WPARAM wParam, LPARAM lParam) {
    handled.push_back({message, wParam, lParam});
    if (onMessage) {
      onMessage(message);
    }
    return 11;
  }
  static std::vector<UINT> messages() {
    std::vector<UINT> list;
    for (const auto& one : handled) {
      list.push_back(one.message);
    }
    return list;
  }
  void runUntil(UINT last) {
    const auto inner = onMessage;
    onMessage = [this, last, inner](UINT message) {
      if (inner) {
        inner(message);
      }
      if (message == last) {
        pump.quit();
      }
    };
    pump.run(display);
  }

  static inline std::vector<Handled> handled;
  static inline std::function<void(UINT)> onMessage;
  MemoryWindow window{{0, 0, 8, 8}, {{0, 0, 8, 8}}};
  QuietDisplay display;
  MessagePump pump{&window, WindowKind::fullRun, procedure};
};
