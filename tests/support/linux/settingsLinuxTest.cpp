// Tests the settings store on Linux where the file cannot be read or written.
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/linux/ordinaryUser.h"
#include "support/settings.h"

namespace {

class SettingsLinux : public PrivateFolders {
 protected:
  void SetUp() override { ASSERT_TRUE(xplFileSystemMini::createFolder(folder())); }
  std::string folder() const { return xplFileSystemMini::getFolder_UserData() + "/Lunaria software"; }
  std::string file() const { return folder() + "/Lunaria screensaver.ini"; }
  int countErrorsThatStart(const std::string& start) const {
    int count = 0;
    for (const auto& entry : logEntries()) {
      count += entry.rfind(start, 0) == 0 ? 1 : 0;
    }
    return count;
  }
  std::string couldNotOpen() const { return "#8551: Could not open file:" + file(); }
  std::string couldNotLoad() const { return "Error #1351: loading xplSettings from file:" + file(); }
  std::string couldNotSet() const { return "Error #1352c: saving xplSettings to file:" + file(); }
  std::string couldNotSave() const { return "Error saving file " + file() + " Error message:"; }
};

}  // namespace

TEST_F(SettingsLinux, UnreadableFileIsReportedAndNeverOverwritten) {
  writeFile(file(), "a=1\n");
  const OrdinaryUser user(root());
  if (!user.canUse(folder())) {
    GTEST_SKIP() << "no ordinary user can reach " << root();
  }
  ASSERT_EQ(chmod(file().c_str(), 0200), 0);  // it could be written
  {
    xplSettings store(xplSettings::scopeUser);
    EXPECT_EQ(countEntries(couldNotOpen(), "ERROR"), 1);
    EXPECT_EQ(countEntries(couldNotLoad(), "ERROR"), 1);
    store.set("b", "2");
    store.set("c", "3");
    EXPECT_EQ(store.get("b"), "2");
    EXPECT_FALSE(store.get("a").has_value());
    EXPECT_EQ(countErrorsThatStart(couldNotSave()), 2);
    EXPECT_EQ(countEntries(couldNotSet(), "ERROR"), 2);
  }
  ASSERT_EQ(chmod(file().c_str(), 0600), 0);
  EXPECT_EQ(readFile(file()), "a=1\n");
}

TEST_F(SettingsLinux, UnreadableFileThatIsRemovedMakesRoomForANewOne) {
  writeFile(file(), "a=1\n");
  const OrdinaryUser user(root());
  if (!user.canUse(folder())) {
    GTEST_SKIP() << "no ordinary user can reach " << root();
  }
  ASSERT_EQ(chmod(file().c_str(), 0), 0);
  xplSettings store(xplSettings::scopeUser);
  ASSERT_EQ(unlink(file().c_str()), 0);
  store.set("b", "2");
  EXPECT_EQ(readFile(file()), "b=2\n");
  store.set("b", "3");
  EXPECT_EQ(readFile(file()), "b=3\n");
  EXPECT_EQ(countErrorsThatStart(couldNotSave()), 0);
}

TEST_F(SettingsLinux, FileThatFailsWhileItIsReadIsTreatedAsUnreadable) {
  // The process's memory is a regular file that opens and whose first byte cannot be read.
  ASSERT_EQ(symlink("/proc/self/mem", file().c_str()), 0);
  ASSERT_TRUE(xplFileSystemMini::fileExists(file()));
  xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(countEntries(couldNotOpen(), "ERROR"), 1);
  EXPECT_EQ(countEntries(couldNotLoad(), "ERROR"), 1);
  store.set("a", "1");
  EXPECT_EQ(store.get("a"), "1");
  EXPECT_EQ(countEntries(couldNotSet(), "ERROR"), 1);
  EXPECT_EQ(filesIn(folder()), std::vector<std::string>{"Lunaria screensaver.ini"});
}

TEST_F(SettingsLinux, FolderWithoutRightsLeavesTheOldFileWhole) {
  writeFile(file(), "a=1\n");
  const OrdinaryUser user(root());
  if (!user.canUse(folder())) {
    GTEST_SKIP() << "no ordinary user can reach " << root();
  }
  ASSERT_EQ(chmod(folder().c_str(), 0500), 0);
  xplSettings store(xplSettings::scopeUser);
  store.set("a", "2");
  EXPECT_EQ(store.get("a"), "2");
  EXPECT_EQ(countEntries(couldNotSave() + "Permission denied", "ERROR"), 1);
  EXPECT_EQ(countEntries(couldNotSet(), "ERROR"), 1);
  ASSERT_EQ(chmod(folder().c_str(), 0700), 0);
  EXPECT_EQ(readFile(file()), "a=1\n");
}

TEST_F(SettingsLinux, FullDiskLeavesTheOldFileWhole) {
  writeFile(file(), "a=1\n");
  xplSettings store(xplSettings::scopeUser);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit limited{65536, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
  store.set("b", std::string(200000, 'x'));
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(readFile(file()), "a=1\n");
  EXPECT_EQ(countEntries(couldNotSave() + "File too large", "ERROR"), 1);
  EXPECT_EQ(countEntries(couldNotSet(), "ERROR"), 1);
  EXPECT_EQ(filesIn(folder()), std::vector<std::string>{"Lunaria screensaver.ini"});
  store.set("b", "2");  // there is room again
  EXPECT_EQ(readFile(file()), "a=1\nb=2\n");
}

TEST_F(SettingsLinux, LinkToTheFileStaysALink) {
  writeFile(root() + "/dotfiles.ini", "a=1\n");
  ASSERT_EQ(symlink((root() + "/dotfiles.ini").c_str(), file().c_str()), 0);
  xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(store.get("a"), "1");
  store.set("b", "2");
  struct stat status {};
  ASSERT_EQ(lstat(file().c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  EXPECT_EQ(readFile(root() + "/dotfiles.ini"), "a=1\nb=2\n");
}

TEST_F(SettingsLinux, PipeInTheFilesPlaceIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
  xplSettings store(xplSettings::scopeUser);
  store.set("a", "1");
  EXPECT_EQ(store.get("a"), "1");
  EXPECT_EQ(countEntries(couldNotSet(), "ERROR"), 1);
}
