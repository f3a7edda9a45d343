// The difference of local from universal time that the process keeps, in three zones.
#include <limits>

#include "moon/moonFixture.h"
#include "moon/moonInfo.h"
#include "moon/moonTimeCorrection.h"

namespace {

constexpr std::int64_t june = 1466420520;
constexpr std::int64_t january = 1484220840;

struct Zone {
  const char* name;
  std::int64_t standardDifference;  // seconds east
  std::int64_t summerTimeInJune;    // seconds by which the clocks are put forward
  std::int64_t summerTimeInJanuary;
};

constexpr Zone zones[] = {
    {"UTC", 0, 0, 0},
    {"Asia/Kolkata", 19800, 0, 0},
    {"America/St_Johns", -12600, 3600, 0},
    {"Pacific/Auckland", 43200, 0, 3600},
};

class MoonTimeCorrectionInZone : public MoonTest, public testing::WithParamInterface<Zone> {
 protected:
  void SetUp() override { beginInZone(GetParam().name); }

  // As a process that starts at this moment computes it.
  std::int64_t correctionAt(std::int64_t moment) {
    clock.set({moment, 0});
    FreshMoonTimeCorrection::forget();
    return MoonTimeCorrection::seconds();
  }
};

TEST_P(MoonTimeCorrectionInZone, IsTheStandardDifferenceInSummerAndInWinter) {
  EXPECT_EQ(GetParam().standardDifference, correctionAt(june));
  EXPECT_EQ(GetParam().standardDifference, correctionAt(january));
}

TEST_P(MoonTimeCorrectionInZone, KeptHourByWhichSummersEventsComeEarly) {
  clock.set({january, 0});
  EXPECT_EQ(january - GetParam().summerTimeInJanuary, cMoonInfo(january).previousFullMoon());
  EXPECT_EQ(june - GetParam().summerTimeInJune, cMoonInfo(june).previousFullMoon());
}

TEST_P(MoonTimeCorrectionInZone, IsNoneWhereTheClockCannotBeBrokenDown) {
  EXPECT_EQ(0, correctionAt(std::numeric_limits<std::int64_t>::max()));
  EXPECT_EQ(0, correctionAt(std::numeric_limits<std::int64_t>::min()));
}

TEST_P(MoonTimeCorrectionInZone, KeptAlthoughTheClockJumps) {
  ASSERT_EQ(GetParam().standardDifference, correctionAt(june));
  for (const std::int64_t moment : {january, june - 40 * 86400, std::numeric_limits<std::int64_t>::max()}) {
    clock.set({moment, 0});
    EXPECT_EQ(GetParam().standardDifference, MoonTimeCorrection::seconds()) << moment;
  }
}

INSTANTIATE_TEST_SUITE_P(OfTheWorld, MoonTimeCorrectionInZone, testing::ValuesIn(zones),
                         [](const auto& test) { return zoneInTestName(test.param.name); });

}  // namespace
