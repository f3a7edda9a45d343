// Tests what is counted of a run.
#include <gtest/gtest.h>

#include "host/runStatistics.h"

namespace {

class RunStatisticsTest : public testing::Test {
 protected:
  // Work of so many milliseconds, then a pause.
  void work(int milliseconds, int pause = 0) {
    statistics.workBegins();
    clock.advance(std::int64_t{1000} * milliseconds);
    statistics.workEnds();
    clock.advance(std::int64_t{1000} * pause);
  }
  std::string line(std::size_t index) const { return statistics.lines().at(index); }

  xplManualClock clock{{1'000'000'000, 999'000}};
  xplClock::Override override{clock};
  double taken = 3.0;
  RunStatistics statistics{[this] { return taken; }};
};

TEST_F(RunStatisticsTest, CountsFramesAndTheirRate) {
  for (int i = 0; i < 50; ++i) {
    work(1, 39);
    statistics.frameIsShown();
  }
  EXPECT_EQ(line(0), "Frames: 50 in 2.0 s, 25.0 a second");
}

TEST_F(RunStatisticsTest, AFramesTimeIsThatOfItsStepsAndItsDrawing) {
  work(2, 10);
  work(3, 10);
  statistics.frameIsShown();
  work(1, 10);
  statistics.frameIsShown();
  EXPECT_EQ(line(1), "A frame: 3.00 ms on average, 5.00 ms at worst");
}

TEST_F(RunStatisticsTest, WorkOnAFrameThatWasNeverShownCountsForNone) {
  work(4);
  statistics.frameIsShown();
  work(100);
  EXPECT_EQ(line(1), "A frame: 4.00 ms on average, 4.00 ms at worst");
}

TEST_F(RunStatisticsTest, TheProcessorsShareIsThatSinceTheBeginning) {
  clock.advance(4'000'000);
  taken = 3.1;
  EXPECT_EQ(line(2), "Processor: 0.10 s, 2.50 % of one core");
}

TEST_F(RunStatisticsTest, ARunOfNoLengthWithoutFramesHasNoRates) {
  EXPECT_EQ(statistics.lines(),
            (std::vector<std::string>{"Frames: 0 in 0.0 s, 0.0 a second", "A frame: none was drawn",
                                      "Processor: 0.00 s, 0.00 % of one core"}));
}

TEST_F(RunStatisticsTest, AClockThatIsSetBackTakesNothingOff) {
  work(5);
  statistics.frameIsShown();
  statistics.workBegins();
  clock.advance(-3'600'000'000);
  statistics.workEnds();
  statistics.frameIsShown();
  EXPECT_EQ(line(0), "Frames: 2 in 0.0 s, 0.0 a second");
  EXPECT_EQ(line(1), "A frame: 2.50 ms on average, 5.00 ms at worst");
}

TEST_F(RunStatisticsTest, TheLinesCanBeOne) {
  work(5, 995);
  statistics.frameIsShown();
  taken = 3.5;
  EXPECT_EQ(RunStatistics::joined(statistics.lines()),
            "Frames: 1 in 1.0 s, 1.0 a second. A frame: 5.00 ms on average, 5.00 ms at worst. "
            "Processor: 0.50 s, 50.00 % of one core");
}

}  // namespace
