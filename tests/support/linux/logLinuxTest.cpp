// Tests the log on Linux: planted links, what goes to standard error, and a file that cannot be made.
#include <sys/stat.h>
#include <unistd.h>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/linux/temporaryEnvironment.h"
#include "support/log.h"

namespace {

class LogLinux : public PrivateFolders {
 protected:
  std::string path() const { return xplFileSystemMini::getFolder_Temporary() + "Other.xplLog.txt"; }
  TemporaryEnvironment environment;
};

}  // namespace

TEST_F(LogLinux, LinkPlantedInTheFilesPlaceIsNotFollowed) {
  writeFile(root() + "/victim", "precious");
  ASSERT_EQ(symlink((root() + "/victim").c_str(), path().c_str()), 0);
  {
    const xplLog log("Other", true, true);
    logError().add("text");
  }
  EXPECT_EQ(readFile(root() + "/victim"), "precious");
}

TEST_F(LogLinux, LinkToAFileThatIsNotThereMakesNone) {
  ASSERT_EQ(symlink((root() + "/victim").c_str(), path().c_str()), 0);
  { const xplLog log("Other", true, true); }
  EXPECT_FALSE(xplFileSystemMini::fileExists(root() + "/victim"));
}

TEST_F(LogLinux, PipeInTheFilesPlaceIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(path().c_str(), 0600), 0);
  const xplLog log("Other", true, true);
  logInfo().add("lost");
  EXPECT_FALSE(xplFileSystemMini::fileExists(path()));
}

TEST_F(LogLinux, FileIsTheUsersAlone) {
  const xplLog log("Other", true, true);
  struct stat status {};
  ASSERT_EQ(stat(path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(LogLinux, StandardErrorHearsTheFileName) {
  environment.set("LUNARIA_DEBUG", "1");
  testing::internal::CaptureStderr();
  { const xplLog log("Other", true, true); }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Log filename:" + path() + "\n");
}

TEST_F(LogLinux, StandardErrorIsLeftAloneWhenNobodyDebugs) {
  environment.unset("LUNARIA_DEBUG");
  testing::internal::CaptureStderr();
  { const xplLog log("Other", true, true); }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(LogLinux, KeptSpellingOfTheNoteThatTheFileCouldNotBeMade) {
  environment.set("LUNARIA_DEBUG", "1");
  ASSERT_TRUE(xplFileSystemMini::createFolder(path()));  // a folder in its place
  testing::internal::CaptureStderr();
  { const xplLog log("Other", true, true); }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Log filename:" + path() + "\nDisabling log becase file does not exist at:" + path() + "\n");
}

TEST_F(LogLinux, EchoGoesToStandardErrorWithStampAndIndentation) {
  environment.set("LUNARIA_DEBUG", "1");
  clock.advance(1000000);
  logWarning().echoToDebugger = true;
  testing::internal::CaptureStderr();
  const logFunctionLife life("function");
  logWarning().add("text");
  logInfo().add("not echoed");
  const std::string heard = testing::internal::GetCapturedStderr();
  logWarning().echoToDebugger = false;
  EXPECT_EQ(heard, "Warning>\t| text\n");
  clock.advance(1000000);
  logWarning().echoToDebugger = true;
  testing::internal::CaptureStderr();
  logWarning().add("stamped");
  const std::string stamped = testing::internal::GetCapturedStderr();
  logWarning().echoToDebugger = false;
  EXPECT_EQ(stamped.rfind("     \t", 0), 0U);
  EXPECT_NE(stamped.find("\nWarning>\t| stamped\n"), std::string::npos);
}
