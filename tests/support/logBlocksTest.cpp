// Tests the scoped loggers.
#include "harness/privateFolders.h"
#include "support/assertion.h"

namespace {

class LogBlocks : public PrivateFolders {
 protected:
  // The entries since the fixture's own, with their indentation marks.
  std::string entries() const {
    const std::string log = logText();
    return log.substr(log.rfind("----------------------\n\n") + 24);
  }
};

// A block of which one half can be had without the other.
class HalfBlock : public logBlockOfCode {
 public:
  using logBlockOfCode::end;
  using logBlockOfCode::start;
};

}  // namespace

TEST_F(LogBlocks, BlockLogsItsWordsAndName) {
  { const logBlockOfCode block("telemetry", "opening", "shutting"); }
  EXPECT_EQ(entries(), "Info>\topening: telemetry\nInfo>\tshutting: telemetry\n");
}

TEST_F(LogBlocks, FunctionEntersAndExits) {
  { const logFunctionLife life("initWorld"); }
  EXPECT_EQ(entries(), "Info>\tEntering: initWorld\nInfo>\tExiting: initWorld\n");
}

TEST_F(LogBlocks, ObjectIsCreatedAndDestroyed) {
  { const logObjectLife life("xplScreenSaverAbstract"); }
  EXPECT_EQ(entries(),
            "Info>\tcreating: xplScreenSaverAbstract\nInfo>\tdestroying: xplScreenSaverAbstract\n");
}

TEST_F(LogBlocks, NestedBlocksIndentWhatLiesBetween) {
  {
    const logFunctionLife outer("outer");
    logWarning().add("between");
    { const logFunctionLife inner("inner"); }
  }
  logInfo().add("after");
  EXPECT_EQ(entries(),
            "Info>\tEntering: outer\nWarning>\t| between\nInfo>\t| Entering: inner\n"
            "Info>\t| Exiting: inner\nInfo>\tExiting: outer\nInfo>\tafter\n");
}

TEST_F(LogBlocks, PercentSignsInANameAreNoFormat) {
  { const logFunctionLife life("%s%n"); }
  EXPECT_EQ(entries(), "Info>\tEntering: %s%n\nInfo>\tExiting: %s%n\n");
}

TEST_F(LogBlocks, TimedFunctionEndsWithItsDuration) {
  {
    const logTimeCountrer timer("loadImage");
    clock.advance(1234567);
  }
  EXPECT_EQ(countEntries("Entering: loadImage", "Info"), 1);
  EXPECT_EQ(countEntries("Exiting: loadImage. Duration:1.235 sec", "Info"), 1);
}

TEST_F(LogBlocks, DurationCountsAcrossTheTurnOfASecond) {
  clock.advance(900000);
  {
    const logTimeCountrer timer("short");
    clock.advance(200000);
  }
  EXPECT_EQ(countEntries("Exiting: short. Duration:0.200 sec", "Info"), 1);
}

TEST_F(LogBlocks, AClockThatIsSetBackGivesANegativeDuration) {
  {
    const logTimeCountrer timer("back");
    clock.advance(-1500000);
  }
  EXPECT_EQ(countEntries("Exiting: back. Duration:-1.500 sec", "Info"), 1);
}

TEST_F(LogBlocks, IndentationReturnsToWhereItWas) {
  const int before = xplLogIndentation();
  {
    const logFunctionLife life("inner");
    EXPECT_EQ(xplLogIndentation(), before + 1);
  }
  EXPECT_EQ(xplLogIndentation(), before);
}

TEST_F(LogBlocks, KeptEndTooManyGoesBelowZeroAndNothingIsIndentedUntilItIsMadeUp) {
  ASSERT_EQ(xplLogIndentation(), 0);
  HalfBlock::end("Exiting", "twice");
  EXPECT_EQ(xplLogIndentation(), -1);
  logInfo().add("below zero");
  {
    const logFunctionLife life("at zero");
    logInfo().add("not indented yet");
  }
  EXPECT_EQ(xplLogIndentation(), -1);
  HalfBlock::start("Entering", "made up");
  EXPECT_EQ(xplLogIndentation(), 0);

  std::string expected =
      "Info>\tExiting: twice\nInfo>\tbelow zero\nInfo>\tEntering: at zero\nInfo>\tnot indented yet\n";
  EXPECT_NE(entries().find(expected), std::string::npos);
  EXPECT_EQ(entries().find("| "), std::string::npos);
}

TEST_F(LogBlocks, EndTooManyFailsTheAssertionInDebugBuilds) {
  ASSERT_EQ(xplLogIndentation(), 0);
  HalfBlock::end("Exiting", "twice");
  HalfBlock::start("Entering", "made up");
  const bool reported = logText().find(
                            "ERROR>\tAssertion failed: m_IdentLevel >= 0, #9541: reducing log ident "
                            "to <0, source io.xplLog, line ") != std::string::npos;
  EXPECT_EQ(reported, xplAssertionsReport);
}
