// Tests the conversions of the clock against each other: universal time, and from local time back to moments.
#include <limits>

#include <gtest/gtest.h>

#include "support/clock.h"

namespace {

class ConversionOfMoment : public testing::TestWithParam<std::int64_t> {};

}  // namespace

TEST(UniversalTime, IsTheCalendarDateWithoutSummerTime) {
  const auto time = xplClock::universalTime(1463865301);  // 21 May 2016 21:15:01 UTC, a Saturday
  ASSERT_TRUE(time.has_value());
  EXPECT_EQ(time->tm_year, 116);
  EXPECT_EQ(time->tm_mon, 4);
  EXPECT_EQ(time->tm_mday, 21);
  EXPECT_EQ(time->tm_hour, 21);
  EXPECT_EQ(time->tm_min, 15);
  EXPECT_EQ(time->tm_sec, 1);
  EXPECT_EQ(time->tm_wday, 6);
  EXPECT_EQ(time->tm_yday, 141);
  EXPECT_EQ(time->tm_isdst, 0);
}

TEST(UniversalTime, IsKnownBefore1970AndAfter3000) {
  EXPECT_EQ(xplClock::universalTime(-1)->tm_year, 69);
  EXPECT_EQ(xplClock::universalTime(-1)->tm_sec, 59);
  EXPECT_EQ(xplClock::universalTime(-2208988800)->tm_year, 0);
  EXPECT_EQ(xplClock::universalTime(-62135596800)->tm_year, 1 - 1900);
  EXPECT_EQ(xplClock::universalTime(253402300800)->tm_year, 10000 - 1900);
}

TEST(UniversalTime, IsNothingForAYearThatDoesNotFit) {
  EXPECT_FALSE(xplClock::universalTime(std::numeric_limits<std::int64_t>::max()).has_value());
  EXPECT_FALSE(xplClock::universalTime(std::numeric_limits<std::int64_t>::min()).has_value());
}

TEST_P(ConversionOfMoment, ThereAndBackIsTheSameMoment) {
  auto local = xplClock::localTime(GetParam());
  ASSERT_TRUE(local.has_value());
  EXPECT_EQ(xplClock::momentOfLocalTime(*local), GetParam());
  local->tm_isdst = -1;
  EXPECT_EQ(xplClock::momentOfLocalTime(*local), GetParam());
}

TEST_P(ConversionOfMoment, LocalAndUniversalTimeDifferByTheZone) {
  const auto universal = xplClock::universalTime(GetParam());
  ASSERT_TRUE(universal.has_value());
  const auto misread = xplClock::momentOfLocalTime(*universal);
  ASSERT_TRUE(misread.has_value());
  EXPECT_LE(std::abs(*misread - GetParam()), 15 * 3600);
  EXPECT_EQ((*misread - GetParam()) % 60, 0) << "no seconds are lost";
}

// None lies in a summer time's last hour, which comes twice, in any zone.
INSTANTIATE_TEST_SUITE_P(Moments, ConversionOfMoment,
                         testing::Values(0, -1, 1, 1463865300, 1484220840, 1709208000 /* 29 February 2024 */,
                                         2147483647, 2147483648, 4102444800 /* 2100 */,
                                         13601000000 /* 2400 */, 13601174400 /* 2 January 2401 */,
                                         32503680000 /* 3000 */, 253402300800 /* 10000 */, -86400 * 365));

TEST(MomentOfLocalTime, IsNothingForAMomentThatDoesNotFit) {
  std::tm local{};
  local.tm_year = std::numeric_limits<int>::max();
  local.tm_mon = std::numeric_limits<int>::max();
  local.tm_mday = std::numeric_limits<int>::max();
  EXPECT_FALSE(xplClock::momentOfLocalTime(local).has_value());
}

TEST(MomentOfLocalTime, DoesNotChangeWithTheDayOfTheWeek) {
  auto local = xplClock::localTime(1463865300);
  ASSERT_TRUE(local.has_value());
  local->tm_wday = 3;
  local->tm_yday = 300;
  EXPECT_EQ(xplClock::momentOfLocalTime(*local), 1463865300);
}
