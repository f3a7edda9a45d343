// Tests the generator: its sequence, its ranges and its seeding.
#include <cstdlib>
#include <vector>

#include <gtest/gtest.h>

#include "support/clock.h"
#include "support/random.h"

namespace {

// A state whose next result is the given one: the result's bits are chosen, and one step is taken back.
std::uint32_t stateBefore(std::uint32_t result) {
  constexpr std::uint32_t inverseOf214013 = 3115528533U;
  static_assert(inverseOf214013 * 214013U == 1U);
  return ((result << 16) - 2531011U) * inverseOf214013;
}

}  // namespace

TEST(Random, DrawsTheSameSequenceForTheSameSeed) {
  xplRandom::seed(1);
  std::vector<int> results;
  for (int i = 0; i < 10; ++i) {
    results.push_back(xplRandom::next());
  }
  EXPECT_EQ(results, (std::vector<int>{41, 18467, 6334, 26500, 19169, 15724, 11478, 29358, 26962, 24464}));
}

TEST(Random, StateContinuesTheSequence) {
  xplRandom::seed(12345);
  xplRandom::next();
  const std::uint32_t state = xplRandom::state();
  const int first = xplRandom::next();
  xplRandom::seed(state);
  EXPECT_EQ(xplRandom::next(), first);
}

TEST(Random, AskingForTheStateDrawsNothing) {
  xplRandom::seed(7);
  EXPECT_EQ(xplRandom::state(), 7U);
  EXPECT_EQ(xplRandom::state(), 7U);
}

TEST(Random, ResultsReachBothEndsOfTheirRange) {
  xplRandom::seed(stateBefore(0));
  EXPECT_EQ(xplRandom::next(), 0);
  xplRandom::seed(stateBefore(32767));
  EXPECT_EQ(xplRandom::next(), xplRandom::maxResult);
  xplRandom::seed(stateBefore(32768));  // the sixteenth bit is not part of the result
  EXPECT_EQ(xplRandom::next(), 0);
}

TEST(Random, UnitIsTheResultDividedBy32768) {
  xplRandom::seed(stateBefore(0));
  EXPECT_EQ(xplRandom::unit(), 0.0F);
  xplRandom::seed(stateBefore(16384));
  EXPECT_EQ(xplRandom::unit(), 0.5F);
  xplRandom::seed(stateBefore(32767));
  EXPECT_EQ(xplRandom::unit(), 32767.0F / 32768.0F);
}

TEST(Random, BetweenIsHalfOpen) {
  xplRandom::seed(stateBefore(0));
  EXPECT_EQ(xplRandom::between(-3.0F, 5.0F), -3.0F);
  xplRandom::seed(stateBefore(16384));
  EXPECT_EQ(xplRandom::between(-3.0F, 5.0F), 1.0F);
  xplRandom::seed(stateBefore(32767));
  EXPECT_LT(xplRandom::between(-3.0F, 5.0F), 5.0F);
}

TEST(Random, BetweenStaysBelowTheEndWhereTheSumRoundsUp) {
  xplRandom::seed(stateBefore(32767));
  EXPECT_LT(xplRandom::between(1000000.0F, 1000001.0F), 1000001.0F);
}

TEST(Random, BetweenEqualEndsGivesThatValue) {
  xplRandom::seed(stateBefore(32767));
  EXPECT_EQ(xplRandom::between(4.0F, 4.0F), 4.0F);
}

TEST(Random, BetweenTakesOneDraw) {
  xplRandom::seed(1);
  xplRandom::between(0.0F, 1.0F);
  EXPECT_EQ(xplRandom::next(), 18467);
}

// In a process of its own: here other tests have seeded already.
TEST(RandomDeathTest, FirstDrawSeedsFromTheClock) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        xplManualClock clock({41, 0});
        const xplClock::Override override(clock);
        const int drawn = xplRandom::next();
        clock.advance(5000000);
        const int second = xplRandom::next();
        xplRandom::seed(41);
        const bool same = drawn == xplRandom::next() && second == xplRandom::next();
        std::exit(same ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}
