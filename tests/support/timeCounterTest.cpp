// The stopwatch on the program's clock.
#include <gtest/gtest.h>

#include "support/timeCounter.h"

namespace {

TEST(TimeCounter, CountsSecondsAndMicroseconds) {
  xplManualClock clock({1000, 900000});
  const xplClock::Override clockOverride(clock);
  const xplTimeCounter counter;
  EXPECT_DOUBLE_EQ(0.0, counter.seconds());
  clock.advance(2'350'000);
  EXPECT_NEAR(2.35, counter.seconds(), 1e-9);
}

TEST(TimeCounter, BeginsAnewWhenRestarted) {
  xplManualClock clock({1000, 0});
  const xplClock::Override clockOverride(clock);
  xplTimeCounter counter;
  clock.advance(5'000'000);
  counter.restart();
  clock.advance(250'000);
  EXPECT_NEAR(0.25, counter.seconds(), 1e-9);
}

TEST(TimeCounter, IsNegativeWhenTheClockIsSetBack) {
  xplManualClock clock({1000, 0});
  const xplClock::Override clockOverride(clock);
  const xplTimeCounter counter;
  clock.set({998, 500000});
  EXPECT_NEAR(-1.5, counter.seconds(), 1e-9);
}

}  // namespace
