// What else may stand in the place of the user's quotes on Linux.
#include <filesystem>

#include <sys/stat.h>

#include "quotes/quotesFixture.h"
#include "support/linux/ordinaryUser.h"

namespace {

class UserQuotesOnLinux : public Quotes {};

TEST_F(UserQuotesOnLinux, APipeIsNotWaitedFor) {
  const std::string path = userFile();
  ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
  EXPECT_TRUE(loadedUserQuotes().empty());
}

TEST_F(UserQuotesOnLinux, APipeWithAReaderIsNotWrittenTo) {
  const std::string path = userFile();
  ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
  const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  ASSERT_GE(reader, 0);
  EXPECT_TRUE(loadedUserQuotes().empty());
  char byte = 0;
  EXPECT_EQ(0, read(reader, &byte, 1)) << "no writer, and nothing written";
  close(reader);
}

TEST_F(UserQuotesOnLinux, ALinkToADeviceIsNotRead) {
  std::filesystem::create_symlink("/dev/zero", userFile());
  EXPECT_TRUE(loadedUserQuotes().empty());
}

TEST_F(UserQuotesOnLinux, ALinkToAFileIsFollowed) {
  writeFile(root() + "/elsewhere", "from elsewhere\n");
  std::filesystem::create_symlink(root() + "/elsewhere", userFile());
  EXPECT_EQ(std::vector<std::string>{"from elsewhere"}, loadedUserQuotes());
}

TEST_F(UserQuotesOnLinux, ALinkThatLeadsNowhereMakesNothingThere) {
  std::filesystem::create_symlink(root() + "/nowhere", userFile());
  EXPECT_TRUE(loadedUserQuotes().empty());
  EXPECT_FALSE(xplFileSystemMini::fileExists(root() + "/nowhere"));
}

TEST_F(UserQuotesOnLinux, AFileThatMayNotBeReadAddsNothingAndStays) {
  writeFile(userFile(), "secret\n");
  chmod(userFile().c_str(), 0);
  const OrdinaryUser user(root());
  if (!user.canUse(root())) {
    GTEST_SKIP() << "no other user can be had here";
  }
  EXPECT_TRUE(loadedUserQuotes().empty());
  EXPECT_EQ(1, countEntries("loading user quotes from file:" + userFile()));
  EXPECT_EQ(7U, std::filesystem::file_size(userFile()));
}

TEST_F(UserQuotesOnLinux, AFolderThatMayNotBeWrittenGetsNoFile) {
  const std::string folder = xplFileSystemMini::folderOf(userFile());
  chmod(folder.c_str(), 0500);
  const OrdinaryUser user(root());
  if (!user.canUse(root())) {
    GTEST_SKIP() << "no other user can be had here";
  }
  EXPECT_TRUE(loadedUserQuotes().empty());
  EXPECT_EQ(1, countEntries("No file for user quotes could be made at:" + userFile(), "Warning"));
}

}  // namespace
