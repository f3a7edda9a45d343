// Tests the application object on Linux.
#include "harness/privateFolders.h"
#include "support/linux/applicationLinux.h"
#include "support/platform.h"

using ApplicationLinux = PrivateFolders;

TEST_F(ApplicationLinux, LogsTheArgumentsThatTheHostHandedOver) {
  xplAppLinux::setArguments({"lunaria", "/p", "31457287"});
  const xplApp application;
  EXPECT_EQ(application.commandLine(), "lunaria /p 31457287");
  EXPECT_EQ(application.arguments(), (std::vector<std::string>{"lunaria", "/p", "31457287"}));
  EXPECT_EQ(countEntries("Application command line: lunaria /p 31457287", "Info"), 1);
  EXPECT_EQ(countEntries("arg[1]:/p", "Info"), 1);
}

TEST_F(ApplicationLinux, ArgumentsWithBlanksStandInQuotesInTheLine) {
  xplAppLinux::setArguments({"/opt/night sky/lunaria", "", "/s"});
  const xplApp application;
  EXPECT_EQ(application.commandLine(), "\"/opt/night sky/lunaria\" \"\" /s");
  EXPECT_EQ(countEntries("arg[0]:/opt/night sky/lunaria", "Info"), 1);
}

TEST_F(ApplicationLinux, WithoutArgumentsTheLineIsEmpty) {
  xplAppLinux::setArguments({});
  const xplApp application;
  EXPECT_EQ(application.commandLine(), "");
  EXPECT_EQ(countEntries("Application command line: ", "Info"), 1);
}
