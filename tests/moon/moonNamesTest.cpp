// What the moon is called at each phase and in each month.
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "moon/moonNames.h"

namespace {

// How many whole degrees in [0, 360) have this name.
int degreesCalled(const std::string& name) {
  int count = 0;
  for (int degrees = 0; degrees < 360; ++degrees) {
    count += name == phaseName(degrees) ? 1 : 0;
  }
  return count;
}

TEST(FullMoonName, HasItsQuotesInEachMonth) {
  const char* const names[] = {"\"Wolf Moon\"",     "\"Snow Moon\"",     "\"Worm Moon\"",
                               "\"Pink Moon\"",     "\"Flower Moon\"",   "\"Strawberry Moon\"",
                               "\"Buck Moon\"",     "\"Sturgeon Moon\"", "\"Harvest Moon\"",
                               "\"Hunter's Moon\"", "\"Beaver Moon\"",   "\"Cold Moon\""};
  for (int month = 1; month <= 12; ++month) {
    EXPECT_STREQ(names[month - 1], fullMoonName(month));
  }
}

TEST(FullMoonName, IsAnErrorInAnyOtherMonth) {
  EXPECT_STREQ("error #528", fullMoonName(0));
  EXPECT_STREQ("error #528", fullMoonName(13));
  EXPECT_STREQ("error #528", fullMoonName(-1));
  EXPECT_STREQ("error #528", fullMoonName(std::numeric_limits<int>::min()));
  EXPECT_STREQ("error #528", fullMoonName(std::numeric_limits<int>::max()));
}

TEST(PhaseName, ChangesAtEachBoundary) {
  const struct {
    int degrees;
    const char* name;
  } boundaries[] = {
      {0, "Full Moon"},
      {3, "Full Moon"},
      {4, "Waning Gibbous Moon"},
      {86, "Waning Gibbous Moon"},
      {87, "Last Quarter"},
      {90, "Last Quarter"},
      {93, "Last Quarter"},
      {94, "Waning Crescent Moon"},
      {176, "Waning Crescent Moon"},
      {177, "New Moon"},
      {183, "New Moon"},
      {184, "Waxing Crescent Moon"},
      {266, "Waxing Crescent Moon"},
      {267, "First Quarter"},
      {273, "First Quarter"},
      {274, "Waxing Gibbous Moon"},
      {356, "Waxing Gibbous Moon"},
      {357, "Full Moon"},
      {359, "Full Moon"},
  };
  for (const auto& boundary : boundaries) {
    EXPECT_STREQ(boundary.name, phaseName(boundary.degrees)) << boundary.degrees;
  }
}

TEST(PhaseName, LastsSevenDegreesAtTheQuartersAndTheRestBetween) {
  EXPECT_EQ(7, degreesCalled("Full Moon"));
  EXPECT_EQ(7, degreesCalled("Last Quarter"));
  EXPECT_EQ(7, degreesCalled("New Moon"));
  EXPECT_EQ(7, degreesCalled("First Quarter"));
  EXPECT_EQ(83, degreesCalled("Waning Gibbous Moon"));
  EXPECT_EQ(83, degreesCalled("Waning Crescent Moon"));
  EXPECT_EQ(83, degreesCalled("Waxing Crescent Moon"));
  EXPECT_EQ(83, degreesCalled("Waxing Gibbous Moon"));
}

TEST(PhaseName, DoesNotCountWholeTurns) {
  EXPECT_STREQ("Last Quarter", phaseName(360 + 90));
  EXPECT_STREQ("Waxing Gibbous Moon", phaseName(3600 + 300));
}

TEST(PhaseName, IsFullBelowZero) {
  EXPECT_STREQ("Full Moon", phaseName(-1));
  EXPECT_STREQ("Full Moon", phaseName(-180));
  EXPECT_STREQ("Full Moon", phaseName(std::numeric_limits<int>::min()));
}

}  // namespace
