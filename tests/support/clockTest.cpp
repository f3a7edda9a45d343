// Tests the clock: overriding it, moving it by hand, and local time over the whole range of years.
#include <chrono>
#include <limits>
#include <thread>

#include <gtest/gtest.h>

#include "support/clock.h"

namespace {

constexpr std::int64_t secondsPerDay = 86400;

// Seconds from 1970 to a broken-down time taken as UTC.
std::int64_t secondsOf(const std::tm& time) {
  // std::chrono's years end at 32767; whole cycles of 400 years are taken off first.
  const std::int64_t year = std::int64_t{time.tm_year} + 1900;
  const std::int64_t cycles = year / 400;
  const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(year % 400)),
                                         std::chrono::month(static_cast<unsigned>(time.tm_mon) + 1),
                                         std::chrono::day(static_cast<unsigned>(time.tm_mday))};
  const std::int64_t days = std::chrono::sys_days(date).time_since_epoch().count() + cycles * 146097;
  return days * secondsPerDay + time.tm_hour * 3600 + time.tm_min * 60 + time.tm_sec;
}

class LocalTimeOfYear : public testing::TestWithParam<std::int64_t> {};

}  // namespace

TEST(Clock, SystemTimeIsAfterThisWasWrittenAndMovesForward) {
  const xplInstant first = xplClock::preciseNow();
  const xplInstant second = xplClock::preciseNow();
  EXPECT_GT(first.seconds, 1700000000);
  EXPECT_GE(first.microseconds, 0);
  EXPECT_LT(first.microseconds, 1000000);
  EXPECT_GE(second.seconds * 1000000 + second.microseconds, first.seconds * 1000000 + first.microseconds);
}

TEST(Clock, SystemSleepLastsAtLeastItsTime) {
  const auto before = std::chrono::steady_clock::now();
  xplClock::sleep(20);
  EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(19));
}

TEST(Clock, OverrideReplacesTheTimeUntilItGoes) {
  xplManualClock outer({100, 7});
  xplManualClock inner({200, 8});
  {
    const xplClock::Override first(outer);
    EXPECT_EQ(xplClock::now(), 100);
    {
      const xplClock::Override second(inner);
      EXPECT_EQ(xplClock::now(), 200);
      EXPECT_EQ(xplClock::preciseNow().microseconds, 8);
    }
    EXPECT_EQ(xplClock::now(), 100);
    EXPECT_EQ(xplClock::preciseNow().microseconds, 7);
  }
  EXPECT_GT(xplClock::now(), 200);
}

TEST(ManualClock, SleepMovesItForwardAndReturnsAtOnce) {
  xplManualClock clock({100, 999000});
  const xplClock::Override override(clock);
  xplClock::sleep(1);
  EXPECT_EQ(clock.now().seconds, 101);
  EXPECT_EQ(clock.now().microseconds, 0);
  xplClock::sleep(4000000000U);
  EXPECT_EQ(clock.now().seconds, 4000101);
}

TEST(ManualClock, AdvanceCarriesInBothDirections) {
  xplManualClock clock({100, 500000});
  clock.advance(2600000);
  EXPECT_EQ(clock.now().seconds, 103);
  EXPECT_EQ(clock.now().microseconds, 100000);
  clock.advance(-200000);
  EXPECT_EQ(clock.now().seconds, 102);
  EXPECT_EQ(clock.now().microseconds, 900000);
  clock.advance(-1900000);
  EXPECT_EQ(clock.now().seconds, 101);
  EXPECT_EQ(clock.now().microseconds, 0);
}

TEST(ManualClock, SetGivesExactlyTheInstant) {
  xplManualClock clock({100, 0});
  clock.set({-5, 999999});
  EXPECT_EQ(clock.now().seconds, -5);
  EXPECT_EQ(clock.now().microseconds, 999999);
}

TEST(ManualClock, AWorkerMaySleepOnItWhileAnotherThreadReads) {
  xplManualClock clock({0, 0});
  const xplClock::Override override(clock);
  std::thread worker([] {
    for (int i = 0; i < 1000; ++i) {
      xplClock::sleep(1);
    }
  });
  std::int64_t last = 0;
  for (int i = 0; i < 1000; ++i) {
    const xplInstant now = xplClock::preciseNow();
    EXPECT_GE(now.seconds * 1000000 + now.microseconds, last);
    last = now.seconds * 1000000 + now.microseconds;
  }
  worker.join();
  EXPECT_EQ(clock.now().seconds, 1);
}

TEST(WakeUp, EndsASleepThatIsUnderWay) {
  using Clock = std::chrono::steady_clock;
  xplWakeUp wakeUp;
  std::thread sleeper([&wakeUp] { xplClock::sleep(60'000, wakeUp); });
  const auto start = Clock::now();
  wakeUp.ring();
  sleeper.join();
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(30));
}

TEST(WakeUp, RungBeforehandItEndsEverySleepAtOnce) {
  using Clock = std::chrono::steady_clock;
  xplWakeUp wakeUp;
  wakeUp.ring();
  const auto start = Clock::now();
  xplClock::sleep(60'000, wakeUp);
  xplClock::sleep(60'000, wakeUp);
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(30));
}

TEST(WakeUp, WhatIsNotWokenSleepsItsTime) {
  using Clock = std::chrono::steady_clock;
  xplWakeUp wakeUp;
  const auto start = Clock::now();
  xplClock::sleep(30, wakeUp);
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(29));
}

TEST(WakeUp, ASetClockGoesItsWholeStep) {
  xplManualClock clock({0, 0});
  const xplClock::Override override(clock);
  xplWakeUp wakeUp;
  wakeUp.ring();
  xplClock::sleep(1'500, wakeUp);
  EXPECT_EQ(clock.now().seconds, 1);
  EXPECT_EQ(clock.now().microseconds, 500'000);
}

TEST_P(LocalTimeOfYear, IsWithinADayOfUniversalTimeAndHasTheRightWeekday) {
  const auto local = xplClock::localTime(GetParam());
  ASSERT_TRUE(local.has_value());
  const std::int64_t asSeconds = secondsOf(*local);
  EXPECT_LE(std::abs(asSeconds - GetParam()), secondsPerDay);
  const std::int64_t days = (asSeconds >= 0 ? asSeconds : asSeconds - secondsPerDay + 1) / secondsPerDay;
  EXPECT_EQ(local->tm_wday, ((days + 4) % 7 + 7) % 7);  // 1 January 1970 was a Thursday
  std::tm newYear = *local;
  newYear.tm_mon = 0;
  newYear.tm_mday = 1;
  newYear.tm_hour = newYear.tm_min = newYear.tm_sec = 0;
  EXPECT_EQ(local->tm_yday, (asSeconds - secondsOf(newYear)) / secondsPerDay);
}

INSTANTIATE_TEST_SUITE_P(Years, LocalTimeOfYear,
                         testing::Values(0, -1, 1463865300, 1709208000 /* 29 February 2024 */, -86400 * 365,
                                         -2208988800 /* 1900 */, -11644473600 /* 1601 */, -11644473601,
                                         -11644473600 + 86399, -11644473600 + 86400, -62135596800 /* 1 */,
                                         -62167219200 /* 0 */, 32503680000 /* 3000 */, 13601088000 /* 2401 */,
                                         13601087999, 253402300800 /* 10000 */, 910692730085 /* 30828 */,
                                         67767976000000000 /* about 2^31 */));

TEST(LocalTime, IsNothingForAYearThatDoesNotFit) {
  EXPECT_FALSE(xplClock::localTime(std::numeric_limits<std::int64_t>::max()).has_value());
  EXPECT_FALSE(xplClock::localTime(std::numeric_limits<std::int64_t>::min()).has_value());
  EXPECT_FALSE(xplClock::localTime(67768036191676799 + 3 * secondsPerDay).has_value());
  EXPECT_FALSE(xplClock::localTime(-67768040609740800 - 3 * secondsPerDay).has_value());
}
