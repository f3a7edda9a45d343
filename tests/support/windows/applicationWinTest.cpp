// Tests the application object on Windows: it takes the process's own command line.
#include <windows.h>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/platform.h"

using ApplicationWin = PrivateFolders;

TEST_F(ApplicationWin, LogsTheProcesssCommandLine) {
  const xplApp application;
  EXPECT_EQ(application.commandLine(), GetCommandLineA());
  EXPECT_EQ(countEntries(std::string("Application command line: ") + GetCommandLineA(), "Info"), 1);
}

TEST_F(ApplicationWin, FirstArgumentIsTheProgram) {
  const xplApp application;
  ASSERT_FALSE(application.arguments().empty());
  EXPECT_EQ(xplFileSystemMini::fileNameOf(application.arguments()[0]), "test_support.exe");
  EXPECT_EQ(countEntries("arg[0]:" + application.arguments()[0], "Info"), 1);
}
