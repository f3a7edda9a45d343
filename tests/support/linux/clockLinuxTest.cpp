// Tests local time on Linux in given time zones.
#include "harness/privateFolders.h"
#include "support/clock.h"
#include "support/linux/temporaryEnvironment.h"

namespace {

class ClockLinux : public PrivateFolders {
 protected:
  TemporaryEnvironment environment;
};

}  // namespace

TEST_F(ClockLinux, LocalTimeFollowsTheZoneAndItsSummerTime) {
  environment.set("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
  const auto summer = xplClock::localTime(1463865300);  // 21 May 2016 21:15 UTC
  ASSERT_TRUE(summer.has_value());
  EXPECT_EQ(summer->tm_hour, 23);
  EXPECT_EQ(summer->tm_min, 15);
  EXPECT_EQ(summer->tm_isdst, 1);
  const auto winter = xplClock::localTime(1450732500);  // 21 December 2015 21:15 UTC
  ASSERT_TRUE(winter.has_value());
  EXPECT_EQ(winter->tm_hour, 22);
  EXPECT_EQ(winter->tm_isdst, 0);
}

TEST_F(ClockLinux, ZoneThatChangesWhileTheProgramRunsIsNoticed) {
  environment.set("TZ", "UTC0");
  EXPECT_EQ(xplClock::localTime(1463865300)->tm_hour, 21);
  environment.set("TZ", "XXX+5");
  EXPECT_EQ(xplClock::localTime(1463865300)->tm_hour, 16);
}

TEST_F(ClockLinux, UnknownZoneIsUniversalTime) {
  environment.set("TZ", "No/Such_Zone");
  EXPECT_EQ(xplClock::localTime(1463865300)->tm_hour, 21);
}

TEST_F(ClockLinux, StampOfTheLogIsLocalTime) {
  environment.set("TZ", "XXX+5");
  clock.advance(1000000);
  logInfo().add("text");
  EXPECT_NE(logText().find("     \t2016-05-21  16:15:01\nInfo>\ttext\n"), std::string::npos);
}

namespace {

// 21 May 2016 21:15 in the local time of the zone.
std::int64_t momentInMay(int daylightFlag) {
  std::tm local{};
  local.tm_year = 116;
  local.tm_mon = 4;
  local.tm_mday = 21;
  local.tm_hour = 21;
  local.tm_min = 15;
  local.tm_isdst = daylightFlag;
  return xplClock::momentOfLocalTime(local).value_or(0);
}

}  // namespace

TEST_F(ClockLinux, MomentOfLocalTimeFollowsTheZone) {
  environment.set("TZ", "UTC");
  EXPECT_EQ(momentInMay(-1), 1463865300);
  environment.set("TZ", "Asia/Kolkata");
  EXPECT_EQ(momentInMay(-1), 1463865300 - 19800);
  environment.set("TZ", "America/St_Johns");
  EXPECT_EQ(momentInMay(-1), 1463865300 + 9000);
  environment.set("TZ", "Pacific/Auckland");
  EXPECT_EQ(momentInMay(-1), 1463865300 - 43200);
}

TEST_F(ClockLinux, MomentOfLocalTimeReadsItAsTheFlagSays) {
  environment.set("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
  EXPECT_EQ(momentInMay(-1), 1463865300 - 7200);
  EXPECT_EQ(momentInMay(1), 1463865300 - 7200);
  EXPECT_EQ(momentInMay(0), 1463865300 - 3600);
}

TEST_F(ClockLinux, TheLastSecondOf1969IsAMoment) {
  environment.set("TZ", "UTC");
  EXPECT_EQ(xplClock::momentOfLocalTime(*xplClock::universalTime(-1)), -1);
}
