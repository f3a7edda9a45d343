// Tests the folders on Linux of users who have no home or no environment, and places that are not trusted.
#include <cstdlib>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/linux/foldersLinuxFixture.h"
#include "support/settings.h"

TEST_F(FoldersLinux, TemporaryFolderIsTheUsersOwn) {
  environment.set("TMPDIR", made("own", 0755));
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("own/"));
  environment.set("TMPDIR", path("own") + "/");
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("own/"));
}

TEST_F(FoldersLinux, TemporaryFolderIsNeverOneThatOthersCanWriteInto) {
  environment.set("XDG_RUNTIME_DIR", made("run", 0700));
  for (const mode_t mode : {mode_t{01777}, mode_t{0777}, mode_t{0770}, mode_t{0722}}) {
    environment.set("TMPDIR", made("shared", mode));
    EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("run/")) << mode;
  }
  environment.set("TMPDIR", "/tmp");
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("run/"));
}

TEST_F(FoldersLinux, TemporaryFolderIsNeverSomebodyElses) {
  std::string foreign = "/";  // root's, unless that is who we are
  if (geteuid() == 0) {
    foreign = made("foreign", 0700);
    ASSERT_EQ(chown(foreign.c_str(), 65534, static_cast<gid_t>(-1)), 0);
  }
  environment.set("TMPDIR", foreign);
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("me/.cache/lunaria/tmp/"));
}

TEST_F(FoldersLinux, TemporaryFolderIsNeverALinkThatSomebodyCouldTurn) {
  made("own", 0700);
  ASSERT_EQ(symlink(path("own").c_str(), path("link").c_str()), 0);
  environment.set("TMPDIR", path("link"));
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("me/.cache/lunaria/tmp/"));
}

TEST_F(FoldersLinux, TemporaryFolderIsMadeBelowTheHomeFolder) {
  environment.set("TMPDIR", path("absent"));
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("me/.cache/lunaria/tmp/"));
  EXPECT_EQ(modeOf(path("me/.cache")), 0700);
  EXPECT_EQ(modeOf(path("me/.cache/lunaria/tmp")), 0700);
  EXPECT_EQ(modeOf(path("absent")), -1);
}

TEST_F(FoldersLinux, TemporaryFolderBelowTheHomeFolderIsNotTrustedBlindly) {
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("me/.cache/lunaria/tmp/"));
  ASSERT_EQ(chmod(path("me/.cache/lunaria/tmp").c_str(), 0777), 0);
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), "");
}

TEST_F(FoldersLinux, HomeThatCannotHoldFoldersIsStillAnswered) {
  writeFile(path("file"), "");
  environment.set("HOME", path("file"));
  EXPECT_EQ(xplFileSystemMini::getFolder_UserData(), path("file/.config"));
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), "");
  { const xplSettings store(xplSettings::scopeUser); }
  EXPECT_EQ(countEntries("During xplSettings constructor could not create folder:" +
                             path("file/.config/Lunaria software"),
                         "ERROR"),
            1);
}

TEST_F(FoldersLinux, EmptyEnvironmentGivesEveryFolder) {
  if (getpwuid(geteuid()) == nullptr) {
    GTEST_SKIP() << "the password database does not know the user who runs the tests";
  }
  EXPECT_EXIT(
      {
        clearenv();
        setenv("PATH", "/usr/bin", 1);
        // The database's home folder may not be written into by this test, so only what makes nothing is
        // asked.
        const bool known = !xplFileSystemMini::getFolder_UserHome().empty() &&
                           !xplFileSystemMini::getFolder_Desktop().empty() &&
                           !xplFileSystemMini::getFolder_Fonts().empty();
        std::_Exit(known ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(FoldersLinux, UserWithoutAnyHomeGetsEmptyFoldersAndErrorEntries) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "only root can become a user whom the password database does not know";
  }
  EXPECT_EXIT(
      {
        clearenv();
        // The process's log stays open to this user.
        const std::string log = logError().path();
        chmod(root().c_str(), 0755);
        chmod(path("tmp").c_str(), 0777);
        chmod(log.c_str(), 0666);
        if (setuid(54321) != 0) {
          std::_Exit(2);
        }
        const bool empty = xplFileSystemMini::getFolder_Temporary().empty() &&
                           xplFileSystemMini::getFolder_UserHome().empty() &&
                           xplFileSystemMini::getFolder_CommonAppData().empty() &&
                           xplFileSystemMini::getFolder_UserData().empty() &&
                           xplFileSystemMini::getFolder_Desktop().empty() &&
                           xplFileSystemMini::getFolder_Fonts().empty();
        std::_Exit(empty ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
  const std::string log = logText();
  for (const char* entry :
       {"ERROR>\tError #6531 in getFolder_UserHome\n\n", "ERROR>\tError #6531 in getFolder_CommonAppData\n\n",
        "ERROR>\tError #6531 in getFolder_AppData::getFolder_UserData\n\n",
        "ERROR>\tError #5414 in xplFileSystemMini::getFolder_Desktop\n\n",
        "ERROR>\tError #4824 in xplFileSystemMini::getFolder_Fonts\n\n"}) {
    EXPECT_NE(log.find(entry), std::string::npos) << entry;
  }
}

TEST_F(FoldersLinux, UserWithoutAnyHomeCanKeepALogAndSettingsInMemory) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "only root can become a user whom the password database does not know";
  }
  EXPECT_EXIT(
      {
        clearenv();
        if (chdir("/") != 0 || setuid(54321) != 0) {
          std::_Exit(2);
        }
        const xplLog log("Lunaria", true, true);
        xplSettings store(xplSettings::scopeUser);
        store.set("a", "1");
        const bool usable = store.get("a") == "1" &&
                            store.filename() == "Lunaria software/Lunaria screensaver.ini" &&
                            log.path() == "Lunaria.xplLog.txt";
        std::_Exit(usable ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}
