// Tests the order in which the pump hands out messages, and how it begins and ends.
#include "host/linux/messagePumpFixture.h"
#include "host/runStatistics.h"

namespace {

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
