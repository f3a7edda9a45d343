// Tests the pump's timers: when they tick, also while nobody sees the window.
#include <algorithm>

#include <poll.h>

#include "host/linux/messagePumpFixture.h"

namespace {

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
  EXPECT_EQ(windowTimers().all()[0].periodsPassed(), 0U);
}

TEST_F(MessagePumpTest, ATimerNeedsAnId) {
  EXPECT_EQ(windowTimers().start(0, 10), 0U);
  EXPECT_TRUE(windowTimers().all().empty());
}

// The display speaks after the first look; when it is heard the run is to end.
class DisplayThatSpeaks : public MessagePumpTest {
 protected:
  DisplayThatSpeaks() {
    display.onCollect = [this, hasSpoken = false]() mutable {
      if (hasSpoken) {
        pump.post(WM_CLOSE);
      } else {
        display.wake();
        hasSpoken = true;
      }
    };
  }
};

TEST_F(DisplayThatSpeaks, IsHeardWithTheNextTickWhereItIsPatient) {
  display.isPatient = true;
  windowTimers().start(1, 30);
  runUntil(WM_CLOSE);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_TIMER, WM_CLOSE}));
}

TEST_F(DisplayThatSpeaks, IsHeardWithoutATickTooWhereItIsPatient) {
  display.isPatient = true;
  runUntil(WM_CLOSE);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_CLOSE}));
}

TEST_F(DisplayThatSpeaks, IsHeardAtOnceWhereItIsNot) {
  windowTimers().start(1, 5000);
  runUntil(WM_CLOSE);
  EXPECT_EQ(messages(), (std::vector<UINT>{WM_CLOSE}));
}

}  // namespace
