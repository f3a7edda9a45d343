// Tests how findings are put on a page.
#include <gtest/gtest.h>

#include "host/linux/doctor/report.h"
#include "host/programVersion.h"

namespace {

const std::string heading = std::string("Lunaria ") + programVersion + " looks at this system\n\n";

TEST(Report, ShowsWhatIsWellAndWhatIsNotWithItsCure) {
  EXPECT_EQ(reportOf({{"First", {{"All good.", ""}, {"Bad.", "mend it"}}}, {"Second", {{"Fine.", ""}}}}),
            heading +
                "First\n"
                "  ok       All good.\n"
                "  PROBLEM  Bad.\n"
                "  Cure:    mend it\n"
                "\n"
                "Second\n"
                "  ok       Fine.\n"
                "\n"
                "There is 1 problem.\n");
}

TEST(Report, CountsProblems) {
  const std::vector<Chapter> chapters{{"A", {{"x", "y"}, {"z", ""}}}, {"B", {{"x", "y"}}}};
  EXPECT_EQ(problemsIn(chapters), 2);
  EXPECT_TRUE(reportOf(chapters).ends_with("\nThere are 2 problems.\n"));
  EXPECT_EQ(problemsIn({{"A", {{"z", ""}}}}), 0);
  EXPECT_TRUE(reportOf({{"A", {{"z", ""}}}}).ends_with("\nAll is well.\n"));
}

TEST(Report, BreaksLinesBeforeTheyAreLongerThanEighty) {
  const std::string fitting(69, 'a');
  EXPECT_EQ(reportOf({{"A", {{fitting, ""}}}}), heading + "A\n  ok       " + fitting + "\n\nAll is well.\n");
  EXPECT_EQ(reportOf({{"A", {{std::string(67, 'a') + " b c", ""}}}}),
            heading + "A\n  ok       " + std::string(67, 'a') + " b\n           c\n\nAll is well.\n");
}

TEST(Report, CountsCharactersAndNotBytes) {
  std::string umlauts;
  for (int i = 0; i < 67; ++i) {
    umlauts += "ä";
  }
  EXPECT_EQ(reportOf({{"A", {{umlauts + " b", ""}}}}),
            heading + "A\n  ok       " + umlauts + " b\n\nAll is well.\n");
}

TEST(Report, BreaksNeitherPathsNorCures) {
  const std::string path = "/home/luna/" + std::string(80, 'x') + " y/file";
  const std::string page = reportOf({{"A", {{"It lies here:\n" + path, "mv " + path}}}});
  EXPECT_EQ(page, heading + "A\n  PROBLEM  It lies here:\n           " + path + "\n  Cure:    mv " + path +
                      "\n\nThere is 1 problem.\n");
}

}  // namespace
