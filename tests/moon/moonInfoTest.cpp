// The phase, and what is tonight and tomorrow.
#include <limits>

#include "moon/moonFixture.h"
#include "moon/moonInfo.h"

namespace {

using MoonInfo = MoonTest;

constexpr std::int64_t hour = 3600;
constexpr std::int64_t day = 24 * hour;
constexpr std::int64_t synodicMonthSeconds = 2551443;
constexpr std::int64_t fullMoonOfMay2016 = 1463865300;       // the 21st, 21:15 UTC
constexpr std::int64_t lastFullMoonOfTheTable = 1512316020;  // 3 December 2017, 15:47 UTC

TEST_F(MoonInfo, AtAFullMoonIsPhaseZeroAndWhollyLit) {
  const cMoonInfo info(fullMoonOfMay2016);
  EXPECT_EQ(fullMoonOfMay2016, info.time());
  EXPECT_EQ(fullMoonOfMay2016, info.previousFullMoon());
  EXPECT_EQ(1466420520, info.nextFullMoon());
  EXPECT_EQ(1462563000, info.previousNewMoon());
  EXPECT_EQ(1465095600, info.nextNewMoon());
  EXPECT_EQ(0, info.phase());
  EXPECT_EQ("100%", info.percentText());
}

TEST_F(MoonInfo, HalfASynodicMonthLaterIsPhase180AndDark) {
  const cMoonInfo info(fullMoonOfMay2016 + (synodicMonthSeconds + 1) / 2);
  EXPECT_EQ(180, info.phase());
  EXPECT_EQ("0%", info.percentText());
  const cMoonInfo before(fullMoonOfMay2016 + (synodicMonthSeconds - 1) / 2);
  EXPECT_EQ(179, before.phase());
  EXPECT_EQ("0%", before.percentText()) << "five ninths of a percent truncate";
}

TEST_F(MoonInfo, PercentIsTruncated) {
  const cMoonInfo info(fullMoonOfMay2016 + synodicMonthSeconds / 360 + 1);
  EXPECT_EQ(1, info.phase());
  EXPECT_EQ("99%", info.percentText());
}

TEST_F(MoonInfo, PercentFallsToTheNewMoonAndRisesAfterIt) {
  const auto percentAt = [](int degrees) {
    const cMoonInfo info(lastFullMoonOfTheTable + (degrees * synodicMonthSeconds + 359) / 360);
    EXPECT_EQ(degrees, info.phase());
    return info.percentText();
  };
  EXPECT_EQ("50%", percentAt(90));
  EXPECT_EQ("25%", percentAt(135));
  EXPECT_EQ("25%", percentAt(225));
  EXPECT_EQ("50%", percentAt(270));
  EXPECT_EQ("99%", percentAt(359));
}

TEST_F(MoonInfo, AfterTheTableThePhaseGoesOnByTheMeanMonth) {
  for (const std::int64_t months : {0, 1, 2, 110, 800}) {
    const cMoonInfo info(lastFullMoonOfTheTable + months * synodicMonthSeconds + synodicMonthSeconds / 4 + 1);
    EXPECT_EQ(lastFullMoonOfTheTable, info.previousFullMoon());
    EXPECT_EQ(90, info.phase()) << months;
  }
}

TEST_F(MoonInfo, KeptPercentAbove100WhereNoFullMoonLiesBefore) {
  const cMoonInfo info(-34560000);
  EXPECT_EQ(0, info.previousFullMoon());
  EXPECT_EQ(-196, info.phase());
  EXPECT_EQ("208%", info.percentText());
}

TEST_F(MoonInfo, OfAClockThatLiesIsStillAnAnswer) {
  for (const std::int64_t time :
       {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max(),
        std::int64_t{-1} << 57, std::int64_t{1} << 57, std::int64_t{1} << 31, (std::int64_t{1} << 31) - 1,
        -(std::int64_t{1} << 31), std::int64_t{4102444800}}) {
    clock.set({time, 0});
    FreshMoonTimeCorrection::forget();
    const cMoonInfo info(time);
    EXPECT_GT(info.phase(), -360) << time;
    EXPECT_LT(info.phase(), 360) << time;
    EXPECT_FALSE(info.isFullMoonTonight() && info.isFullMoonTomorrow()) << time;
    EXPECT_FALSE(info.isNewMoonTonight() && info.isNewMoonTomorrow()) << time;
  }
}

TEST_F(MoonInfo, NearestIsTheNextOneOnATie) {
  constexpr std::int64_t previous = 1453599960;
  constexpr std::int64_t next = 1456165200;
  static_assert((next - previous) % 2 == 0);
  constexpr std::int64_t middle = (previous + next) / 2;
  EXPECT_EQ(previous, cMoonInfo(middle - 1).nearestFullMoon());
  EXPECT_EQ(next, cMoonInfo(middle).nearestFullMoon());
  EXPECT_EQ(next, cMoonInfo(middle + 1).nearestFullMoon());
}

TEST_F(MoonInfo, ANightLastsFromSixToSix) {
  const cMoonInfo info(fullMoonOfMay2016);
  constexpr std::int64_t sixInTheMorning = fullMoonOfMay2016 - 15 * hour - 900;
  const auto at = [&](std::int64_t moment) {
    clock.set({moment, 0});
    return (info.isFullMoonTonight() ? 1 : 0) + (info.isFullMoonTomorrow() ? 2 : 0);
  };
  EXPECT_EQ(0, at(sixInTheMorning - day - 1));
  EXPECT_EQ(2, at(sixInTheMorning - day));
  EXPECT_EQ(2, at(sixInTheMorning - 1));
  EXPECT_EQ(1, at(sixInTheMorning));
  EXPECT_EQ(1, at(sixInTheMorning + day - 1));
  EXPECT_EQ(0, at(sixInTheMorning + day));
}

TEST_F(MoonInfo, AnEventInTheSmallHoursBelongsToTheNightBefore) {
  // 22 April 2016 at 05:24 UTC.
  constexpr std::int64_t event = 1461302640;
  constexpr std::int64_t midnight = event - 5 * hour - 24 * 60;
  const cMoonInfo info(event);
  const auto isTonightAt = [&](std::int64_t moment) {
    clock.set({moment, 0});
    return info.isFullMoonTonight();
  };
  EXPECT_FALSE(isTonightAt(midnight - 18 * hour - 1)) << "the day before, before six";
  EXPECT_TRUE(isTonightAt(midnight - 18 * hour)) << "the day before, from six on";
  EXPECT_TRUE(isTonightAt(midnight + 6 * hour - 1)) << "the day itself, before six";
  EXPECT_FALSE(isTonightAt(midnight + 6 * hour));
}

TEST_F(MoonInfo, NewMoonsHaveTheirNightsToo) {
  // 5 June 2016 at 03:00 UTC: the night of the 4th.
  const cMoonInfo info(1465095600);
  clock.set({1465095600 - 9 * hour, 0});
  EXPECT_TRUE(info.isNewMoonTonight());
  EXPECT_FALSE(info.isNewMoonTomorrow());
  EXPECT_FALSE(info.isFullMoonTonight());
  EXPECT_FALSE(info.isFullMoonTomorrow());
  clock.set({1465095600 - 9 * hour - day, 0});
  EXPECT_FALSE(info.isNewMoonTonight());
  EXPECT_TRUE(info.isNewMoonTomorrow());
}

TEST_F(MoonInfo, TheSameDayOfAnotherYearIsNotTonight) {
  const cMoonInfo info(fullMoonOfMay2016);
  clock.set({fullMoonOfMay2016 + 365 * day, 0});
  EXPECT_FALSE(info.isFullMoonTonight());
  clock.set({fullMoonOfMay2016, 0});
  EXPECT_TRUE(info.isFullMoonTonight());
}

// The event is that of the moment asked about; the night is that of the clock at each call.
TEST_F(MoonInfo, AClockThatJumpsBackAsksForAnotherNight) {
  clock.set({fullMoonOfMay2016, 0});
  const cMoonInfo info(fullMoonOfMay2016);
  EXPECT_TRUE(info.isFullMoonTonight());
  clock.set({fullMoonOfMay2016 - day, 0});
  EXPECT_FALSE(info.isFullMoonTonight());
  EXPECT_TRUE(info.isFullMoonTomorrow());
  clock.set({fullMoonOfMay2016 - 30 * day, 0});
  EXPECT_FALSE(info.isFullMoonTonight()) << "the full moon of April, which info is not about";
  EXPECT_FALSE(info.isFullMoonTomorrow());
  clock.set({-1, 0});
  EXPECT_FALSE(info.isFullMoonTonight());
  EXPECT_EQ(0, info.phase());
}

// No full moon is known to come, so that the nearest is that of 1970: nobody is told of one any more.
TEST_F(MoonInfo, KeptSilenceAboutFullMoonsAfterTheTable) {
  for (int months = 1; months < 120; ++months) {
    const std::int64_t fullMoon = lastFullMoonOfTheTable + months * synodicMonthSeconds + hour;
    clock.set({fullMoon, 0});
    const cMoonInfo info(fullMoon);
    ASSERT_EQ(0, info.phase());
    ASSERT_FALSE(info.isFullMoonTonight()) << months;
    ASSERT_FALSE(info.isFullMoonTomorrow()) << months;
  }
}

TEST_F(MoonInfo, IsComputedInsideALoggedBlock) {
  const cMoonInfo info(fullMoonOfMay2016);
  EXPECT_EQ(1, countEntries("Entering: cMoonInfo::calcPhaseForTime", "Info"));
  EXPECT_EQ(1, countEntries("Exiting: cMoonInfo::calcPhaseForTime", "Info"));
  EXPECT_TRUE(logError().isEmpty());
}

}  // namespace
