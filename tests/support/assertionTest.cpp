// Tests the assertions: what they report and that they never stop the program.
#include "harness/privateFolders.h"
#include "support/assertion.h"

using Assertion = PrivateFolders;

TEST_F(Assertion, ReportHoldsConditionTextSourceAndLine) {
  xplReportFailedAssertion("a == b", "#1234: they differ", "someUnit", 56);
  EXPECT_EQ(countEntries("Assertion failed: a == b, #1234: they differ, source someUnit, line 56", "ERROR"),
            1);
}

TEST_F(Assertion, FailureIsReportedInDebugBuildsOnlyAndTheProgramGoesOn) {
  const int one = 1;
  xplAssert(one == 2, "#1235: one is not two", "someUnit");
  const std::string entry = "Assertion failed: one == 2, #1235: one is not two, source someUnit, line " +
                            std::to_string(__LINE__ - 2);
  EXPECT_EQ(countEntries(entry, "ERROR"), xplAssertionsReport ? 1 : 0);
  EXPECT_EQ(logError().isEmpty(), !xplAssertionsReport);
}

TEST_F(Assertion, SuccessReportsNothing) {
  const int one = 1;
  xplAssert(one == 1, "#1236: one is one", "someUnit");
  EXPECT_TRUE(logError().isEmpty());
}

TEST_F(Assertion, ConditionIsEvaluatedInDebugBuildsOnly) {
  int evaluations = 0;
  xplAssert(++evaluations > 0, "#1237: counted", "someUnit");
  EXPECT_EQ(evaluations, xplAssertionsReport ? 1 : 0);
}
