// Tests local time on Windows against the system's own zone.
#include <windows.h>
#include <gtest/gtest.h>

#include "support/clock.h"

namespace {

// Minutes that local time is ahead of universal time at a moment, by the system's file time conversion.
int minutesAhead(std::int64_t seconds) {
  const auto local = xplClock::localTime(seconds);
  if (!local) {
    return -100000;
  }
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(local->tm_year + 1900);
  time.wMonth = static_cast<WORD>(local->tm_mon + 1);
  time.wDay = static_cast<WORD>(local->tm_mday);
  time.wHour = static_cast<WORD>(local->tm_hour);
  time.wMinute = static_cast<WORD>(local->tm_min);
  time.wSecond = static_cast<WORD>(local->tm_sec);
  FILETIME fileTime{};
  SystemTimeToFileTime(&time, &fileTime);
  const auto ticks = static_cast<std::int64_t>((static_cast<std::uint64_t>(fileTime.dwHighDateTime) << 32) |
                                               fileTime.dwLowDateTime);
  return static_cast<int>((ticks / 10000000 - 11644473600 - seconds) / 60);
}

}  // namespace

TEST(ClockWin, LocalTimeIsTheZonesStandardOrSummerTime) {
  // Four moments over one year, and one in each of two distant centuries.
  for (const std::int64_t seconds :
       {std::int64_t{1704110400}, std::int64_t{1711972800}, std::int64_t{1719835200},
        std::int64_t{1727784000}, std::int64_t{-5364662400}, std::int64_t{4102488000}}) {
    TIME_ZONE_INFORMATION zone{};
    const auto local = xplClock::localTime(seconds);
    ASSERT_TRUE(local.has_value());
    ASSERT_NE(GetTimeZoneInformationForYear(static_cast<USHORT>(local->tm_year + 1900), nullptr, &zone),
              FALSE);
    ASSERT_GE(local->tm_isdst, 0);
    const LONG bias = zone.Bias + (local->tm_isdst > 0 ? zone.DaylightBias : zone.StandardBias);
    EXPECT_EQ(minutesAhead(seconds), -bias) << seconds;
  }
}

TEST(ClockWin, FarYearsKeepTheirDayAndMonth) {
  constexpr std::int64_t secondsPerCycle = std::int64_t{146097} * 86400;
  const auto now = xplClock::localTime(1463865300);
  const auto later = xplClock::localTime(1463865300 + 100 * secondsPerCycle);
  const auto earlier = xplClock::localTime(1463865300 - 2 * secondsPerCycle);
  ASSERT_TRUE(now.has_value());
  ASSERT_TRUE(later.has_value());
  ASSERT_TRUE(earlier.has_value());
  for (const std::tm& other : {*later, *earlier}) {
    EXPECT_EQ(other.tm_mon, now->tm_mon);
    EXPECT_EQ(other.tm_mday, now->tm_mday);
    EXPECT_EQ(other.tm_wday, now->tm_wday);
    EXPECT_EQ(other.tm_yday, now->tm_yday);
  }
  EXPECT_EQ(later->tm_year, now->tm_year + 40000);
  EXPECT_EQ(earlier->tm_year, now->tm_year - 800);
}
