// The time correction while the user changes the zone, which a program can imitate here alone.
#include "moon/moonFixture.h"
#include "moon/moonInfo.h"

namespace {

using ChangedZone = MoonTest;

constexpr std::int64_t june = 1466420520;
constexpr std::int64_t january = 1484220840;

TEST_F(ChangedZone, KeptCorrectionOfTheFirstZone) {
  zone.set("Asia/Kolkata");
  clock.set({june, 0});
  EXPECT_EQ(19800, MoonTimeCorrection::seconds());
  zone.set("Pacific/Auckland");
  clock.set({january, 0});
  EXPECT_EQ(19800, MoonTimeCorrection::seconds());
  // The tables are now read as Auckland's summer time, 13 hours ahead, and put right by 5 h 30 min.
  EXPECT_EQ(january - 46800 + 19800, cMoonInfo(january).previousFullMoon());
}

TEST_F(ChangedZone, ThatIsUnknownIsUniversalTime) {
  zone.set("No/Such_Zone");
  clock.set({june, 0});
  EXPECT_EQ(0, MoonTimeCorrection::seconds());
  EXPECT_EQ(june, cMoonInfo(june).previousFullMoon());
}

}  // namespace
