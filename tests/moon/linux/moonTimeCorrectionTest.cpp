// The difference of local from universal time that the process keeps, in zones of the environment.
#include <limits>

#include "moon/moonFixture.h"
#include "moon/moonInfo.h"
#include "moon/moonTimeCorrection.h"
#include "support/linux/temporaryEnvironment.h"

namespace {

class MoonTimeCorrections : public MoonTest {
 protected:
  // As a process that starts in this zone at this moment computes it.
  std::int64_t correctionIn(const char* zoneName, std::int64_t moment) {
    environment.set("TZ", zoneName);
    clock.set({moment, 0});
    FreshMoonTimeCorrection::forget();
    return MoonTimeCorrection::seconds();
  }

  TemporaryEnvironment environment;
};

constexpr std::int64_t june = 1466420520;
constexpr std::int64_t january = 1484220840;

TEST_F(MoonTimeCorrections, AreTheZonesStandardDifferenceInSummerAndInWinter) {
  for (const std::int64_t moment : {june, january}) {
    EXPECT_EQ(0, correctionIn("UTC", moment));
    EXPECT_EQ(19800, correctionIn("Asia/Kolkata", moment));
    EXPECT_EQ(-12600, correctionIn("America/St_Johns", moment));
    EXPECT_EQ(43200, correctionIn("Pacific/Auckland", moment));
  }
}

TEST_F(MoonTimeCorrections, KeptAlthoughTheZoneChanges) {
  EXPECT_EQ(19800, correctionIn("Asia/Kolkata", june));
  environment.set("TZ", "Pacific/Auckland");
  clock.set({january, 0});
  EXPECT_EQ(19800, MoonTimeCorrection::seconds());
  // The tables are now read as Auckland's summer time, 13 hours ahead, and put right by 5 h 30 min.
  EXPECT_EQ(january - 46800 + 19800, cMoonInfo(january).previousFullMoon());
}

TEST_F(MoonTimeCorrections, KeptHourByWhichSummersEventsComeEarly) {
  environment.set("TZ", "America/St_Johns");
  clock.set({january, 0});
  EXPECT_EQ(january, cMoonInfo(january).previousFullMoon()) << "in winter to the minute";
  EXPECT_EQ(june - 3600, cMoonInfo(june).previousFullMoon());
}

TEST_F(MoonTimeCorrections, AreNoneWhereTheClockCannotBeBrokenDown) {
  EXPECT_EQ(0, correctionIn("Asia/Kolkata", std::numeric_limits<std::int64_t>::max()));
  EXPECT_EQ(0, correctionIn("Asia/Kolkata", std::numeric_limits<std::int64_t>::min()));
}

TEST_F(MoonTimeCorrections, OfAnUnknownZoneAreNone) {
  EXPECT_EQ(0, correctionIn("No/Such_Zone", june));
}

}  // namespace
