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
