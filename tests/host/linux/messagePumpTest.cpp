// Tests the order in which the pump hands out messages.
#include <algorithm>

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/eventfd.h>

#include "graphics/linux/memoryWindow.h"
#include "host/linux/messagePump.h"
#include "host/linux/windowTimers.h"
#include "host/runStatistics.h"

namespace {

constexpr UINT otherMessage = 0x0400;

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
  void flush() override { ++flushes; }
  // The display has something to say.
  void wake() { ::eventfd_write(m_wake.get(), 1); }

  std::function<void()> onCollect;
  bool isShown = true;
  bool isHidden = false;
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

  static std::vector<Handled> handled;
  static std::function<void(UINT)> onMessage;
  MemoryWindow window{{0, 0, 8, 8}, {{0, 0, 8, 8}}};
  QuietDisplay display;
  MessagePump pump{&window, WindowKind::fullRun, procedure};
};

std::vector<Handled> MessagePumpTest::handled;
std::function<void(UINT)> MessagePumpTest::onMessage;

TEST_F(MessagePumpTest, SendsAtOnceAndGivesTheAnswer) {
  EXPECT_EQ(pump.send(otherMessage, 1, 2), 11);
  EXPECT_EQ(handled, (std::vector<Handled>{{otherMessage, 1, 2}}));
}

TEST_F(MessagePumpTest, HandsOutPostedMessagesInTheirOrder) {
  pump.post(WM_ERASEBKGND);
  pump.post(WM_KEYDOWN, 5, 6);
  pump.post(WM_CLOSE);
  runUntil(WM_CLOSE);
  EXPECT_EQ(handled, (std::vector<Handled>{{WM_ERASEBKGND, 0, 0}, {WM_KEYDOWN, 5, 6}, {WM_CLOSE, 0, 0}}));
}

TEST_F(MessagePumpTest, PaintsWhenNothingElseWaits) {
  pump.invalidate();
  pump.post(WM_ERASEBKGND);
  pump.post(otherMessage);
  runUntil(WM_PAINT);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_ERASEBKGND, otherMessage, WM_PAINT}));
}

TEST_F(MessagePumpTest, PaintsOnceForManyInvalidations) {
  onMessage = [this](UINT message) {
    if (message == WM_PAINT) {
      pump.validate();
      pump.post(otherMessage);
    }
  };
  pump.invalidate();
  pump.invalidate();
  runUntil(otherMessage);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_PAINT, otherMessage}));
}

TEST_F(MessagePumpTest, PaintsAgainUntilThePaintIsAnswered) {
  int paints = 0;
  onMessage = [&](UINT message) {
    if (message == WM_PAINT && ++paints == 3) {
      pump.validate();
      pump.post(otherMessage);
    }
  };
  pump.invalidate();
  runUntil(otherMessage);
  EXPECT_EQ(paints, 3);
}

TEST_F(MessagePumpTest, PaintsOnlyAfterTheLastFrameWasShown) {
  display.isShown = false;
  pump.invalidate();
  int looks = 0;
  display.onCollect = [&] {
    // The second look finds what the display says after the first.
    if (++looks == 1) {
      display.wake();
    } else {
      EXPECT_TRUE(handled.empty());
      display.isShown = true;
    }
  };
  runUntil(WM_PAINT);
  EXPECT_EQ(looks, 2);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_PAINT}));
}

TEST_F(MessagePumpTest, ATimerTicksUnderItsId) {
  EXPECT_EQ(windowTimers().start(2, 1), 2U);
  runUntil(WM_TIMER);
  EXPECT_EQ(handled, (std::vector<Handled>{{WM_TIMER, 2, 0}}));
}

TEST_F(MessagePumpTest, ATimerGoesOnTicking) {
  windowTimers().start(1, 1);
  int ticks = 0;
  onMessage = [&](UINT) {
    if (++ticks == 3) {
      pump.post(WM_CLOSE);
    }
  };
  runUntil(WM_CLOSE);
  EXPECT_GE(ticks, 3);
}

TEST_F(MessagePumpTest, PeriodsThatPassedUnseenAreOneTick) {
  windowTimers().start(1, 1);
  ::poll(nullptr, 0, 30);  // as when the process was stopped
  onMessage = [this](UINT message) {
    if (message == WM_TIMER) {
      windowTimers().stop(1);
      pump.post(WM_CLOSE);
    }
  };
  runUntil(WM_CLOSE);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_TIMER, WM_CLOSE}));
}

TEST_F(MessagePumpTest, ATickThatWaitsComesBeforeThePaint) {
  windowTimers().start(1, 1);
  ::poll(nullptr, 0, 20);
  pump.invalidate();
  onMessage = [](UINT message) {
    if (message == WM_TIMER) {
      windowTimers().stop(1);
    }
  };
  runUntil(WM_PAINT);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_TIMER, WM_PAINT}));
}

TEST_F(MessagePumpTest, NothingIsPaintedThatNobodySees) {
  display.isHidden = true;
  windowTimers().start(1, 40);
  pump.invalidate();
  onMessage = [this](UINT message) {
    if (message == WM_TIMER) {
      pump.post(WM_CLOSE);
    }
  };
  runUntil(WM_CLOSE);
  EXPECT_EQ(std::count(handled.begin(), handled.end(), Handled{WM_PAINT, 0, 0}), 0);
}

TEST_F(MessagePumpTest, UnseenTheTicksOfASecondComeTogether) {
  display.isHidden = true;
  windowTimers().start(1, 100);
  int looks = 0;
  display.onCollect = [&] { looks += handled.empty() ? 1 : 0; };
  onMessage = [this](UINT message) {
    if (message == WM_TIMER) {
      pump.post(WM_CLOSE);
    }
  };
  runUntil(WM_CLOSE);
  // Ten periods pass in the second, and a slow machine may see the eleventh.
  EXPECT_GE(std::count(handled.begin(), handled.end(), Handled{WM_TIMER, 1, 0}), 9);
  EXPECT_LE(looks, 2) << "it woke before the second was over";
}

TEST_F(MessagePumpTest, UnseenAPauseIsNotCaughtUp) {
  display.isHidden = true;
  windowTimers().start(1, 1);
  ::poll(nullptr, 0, 60);  // as when the process was stopped
  display.wake();
  onMessage = [this](UINT message) {
    if (message == WM_TIMER) {
      windowTimers().stop(1);
      pump.post(WM_CLOSE);
    }
  };
  runUntil(WM_CLOSE);
  EXPECT_EQ(std::count(handled.begin(), handled.end(), Handled{WM_TIMER, 1, 0}), 25);
}

TEST_F(MessagePumpTest, SeenAgainItPaintsAtOnce) {
  display.isHidden = true;
  windowTimers().start(1, 5);
  int ticks = 0;
  onMessage = [&](UINT message) {
    if (message == WM_TIMER && ++ticks == 3) {
      windowTimers().stop(1);
      display.isHidden = false;
      pump.invalidate();
    }
  };
  runUntil(WM_PAINT);
  EXPECT_EQ(handled.back(), (Handled{WM_PAINT, 0, 0}));
  EXPECT_GE(ticks, 3);
}

TEST_F(MessagePumpTest, AStoppedTimerTicksNoMore) {
  windowTimers().start(1, 1);
  ::poll(nullptr, 0, 10);
  windowTimers().stop(1);
  windowTimers().start(2, 5);
  runUntil(WM_TIMER);
  EXPECT_EQ(handled, (std::vector<Handled>{{WM_TIMER, 2, 0}}));
}

TEST_F(MessagePumpTest, ATimerOfTheSameIdStartsAnew) {
  windowTimers().start(1, 1);
  windowTimers().start(1, 60000);
  EXPECT_EQ(windowTimers().all().size(), 1U);
  ::poll(nullptr, 0, 10);
  EXPECT_FALSE(windowTimers().all()[0].hasTicked());
}

TEST_F(MessagePumpTest, ATimerNeedsAnId) {
  EXPECT_EQ(windowTimers().start(0, 10), 0U);
  EXPECT_TRUE(windowTimers().all().empty());
}

TEST_F(MessagePumpTest, WatchesCallBack) {
  const FileDescriptor event(::eventfd(1, EFD_NONBLOCK | EFD_CLOEXEC));
  int calls = 0;
  pump.watch(event.get(), [&] {
    ++calls;
    pump.unwatch(event.get());
    pump.post(WM_CLOSE);
  });
  runUntil(WM_CLOSE);
  EXPECT_EQ(calls, 1);
}

TEST_F(MessagePumpTest, SendsItsRequestsBeforeItWaits) {
  pump.post(WM_CLOSE);
  runUntil(WM_CLOSE);
  EXPECT_GE(display.flushes, 1);
}

TEST_F(MessagePumpTest, MeasuresTicksAndPaintsAsTheWorkOnAFrame) {
  xplManualClock clock{{1'000'000'000, 0}};
  const xplClock::Override override(clock);
  RunStatistics statistics([] { return 0.0; });
  pump.measureWith(&statistics);
  onMessage = [&](UINT message) {
    clock.advance(message == WM_TIMER ? 2000 : message == WM_PAINT ? 5000 : 100000);
  };
  pump.send(WM_TIMER);
  pump.send(otherMessage);
  pump.send(WM_PAINT);
  EXPECT_EQ(statistics.lines().at(1), "A frame: 7.00 ms on average, 7.00 ms at worst");
  pump.measureWith(nullptr);
  pump.send(WM_PAINT);
  EXPECT_EQ(statistics.lines().at(0), "Frames: 1 in 0.1 s, 8.9 a second");
}

TEST_F(MessagePumpTest, DestroysTheWindowOnce) {
  pump.destroyWindow();
  pump.destroyWindow();
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_DESTROY}));
  EXPECT_EQ(pump.failure(), "");
}

TEST_F(MessagePumpTest, AWindowThatIsGoneIsDestroyedWithoutAClose) {
  display.onCollect = [this] { pump.windowIsGone("taken away"); };
  pump.run(display);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_DESTROY}));
  EXPECT_EQ(pump.failure(), "taken away");
}

TEST_F(MessagePumpTest, AWindowThatGoesAfterItsEndIsNoFailure) {
  pump.destroyWindow();
  pump.windowIsGone("taken away");
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_DESTROY}));
  EXPECT_EQ(pump.failure(), "");
}

TEST_F(MessagePumpTest, IsTheCurrentOneWhileItLives) {
  EXPECT_EQ(MessagePump::current(), &pump);
}

TEST(NoMessagePump, IsCurrentBeforeTheFirst) {
  EXPECT_EQ(MessagePump::current(), nullptr);
}

}  // namespace
