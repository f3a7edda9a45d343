// Tests processes with a time limit.
#include <gtest/gtest.h>
#include <unistd.h>

#include "host/linux/doctor/boundedChild.h"
#include "support/timeCounter.h"

namespace {

TEST(BoundedChild, GivesWhatACommandWrites) {
  EXPECT_EQ(runBounded(5000, {"printf", "%s-%s", "one", "two"}), "one-two");
}

TEST(BoundedChild, AFailingOrMissingCommandGivesNothing) {
  EXPECT_EQ(runBounded(5000, {"false"}), std::nullopt);
  EXPECT_EQ(runBounded(5000, {"no-such-command-anywhere"}), std::nullopt);
}

TEST(BoundedChild, IsEndedWhenItTakesTooLong) {
  const xplTimeCounter counter;
  EXPECT_EQ(runBounded(100, {"sleep", "60"}), std::nullopt);
  EXPECT_LT(counter.seconds(), 10.0);
}

TEST(BoundedChild, IsEndedWhenItWritesWithoutEnd) {
  EXPECT_EQ(runBounded(20000, {"yes"}), std::nullopt);
}

TEST(BoundedChild, GivesWhatWorkWrites) {
  const auto work = [](int output) { return ::write(output, "done", 4) == 4 ? 0 : 1; };
  EXPECT_EQ(runBounded(5000, work), "done");
  EXPECT_EQ(runBounded(5000, [](int) { return 3; }), std::nullopt);
  EXPECT_EQ(runBounded(5000, [](int) { return 0; }), "");
}

}  // namespace
