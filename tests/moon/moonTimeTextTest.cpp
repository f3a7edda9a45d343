// How months and moments are written.
#include <limits>

#include "harness/privateFolders.h"
#include "moon/moonTimeText.h"
#include "support/assertion.h"

namespace {

using MoonTimeText = PrivateFolders;

constexpr const char* outOfRange = "intToMonth() called with index out of 0..11";

TEST(IntToMonth, NamesTheTwelveMonths) {
  const char* const names[] = {"January", "February", "March",     "April",   "May",      "June",
                               "July",    "August",   "September", "October", "November", "December"};
  for (int index = 0; index < 12; ++index) {
    EXPECT_STREQ(names[index], intToMonth(index));
  }
}

TEST(IntToMonth, SaysSoForAnyOtherIndex) {
  EXPECT_STREQ(outOfRange, intToMonth(12));
  EXPECT_STREQ(outOfRange, intToMonth(-1));
  EXPECT_STREQ(outOfRange, intToMonth(std::numeric_limits<int>::max()));
  EXPECT_STREQ(outOfRange, intToMonth(std::numeric_limits<int>::min()));
}

TEST_F(MoonTimeText, IsMonthDayHourAndMinute) {
  std::tm time{};
  time.tm_year = 116;
  time.tm_mon = 4;
  time.tm_mday = 21;
  time.tm_hour = 21;
  time.tm_min = 15;
  EXPECT_EQ("May 21, 21:15", timeStruct2String(&time));
}

TEST_F(MoonTimeText, WritesTwoDigits) {
  std::tm time{};
  time.tm_mday = 1;
  time.tm_min = 7;
  EXPECT_EQ("January 01, 00:07", timeStruct2String(&time));
}

TEST_F(MoonTimeText, OfAMonthThatIsNoneSaysSo) {
  std::tm time{};
  time.tm_mon = 12;
  time.tm_mday = 3;
  EXPECT_EQ(std::string(outOfRange) + " 03, 00:00", timeStruct2String(&time));
}

TEST_F(MoonTimeText, KeptLineOfTheReportOfAMissingTime) {
  EXPECT_EQ("", timeStruct2String(nullptr));
  EXPECT_EQ(xplAssertionsReport ? 1 : 0,
            countEntries("Assertion failed: (a != NULL) && _T(\"#9863: timeStruct2String(NULL)\"), #9863: "
                         "timeStruct2String(NULL), source cMoonInfo, line 38",
                         "ERROR"));
}

}  // namespace
