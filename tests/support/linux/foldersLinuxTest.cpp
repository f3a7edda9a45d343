// Tests the well-known folders on Linux: variables, defaults, folders that are made, and places that are not
// trusted.
#include <cstdlib>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/linux/temporaryEnvironment.h"
#include "support/settings.h"

namespace {

// A home folder of the test's own, and none of the variables that name other folders.
class FoldersLinux : public PrivateFolders {
 protected:
  void SetUp() override {
    xplFileSystemMini::redirectFolders("");
    ASSERT_EQ(mkdir(path("me").c_str(), 0700), 0);
    environment.set("HOME", path("me"));
    for (const char* name :
         {"TMPDIR", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
      environment.unset(name);
    }
  }
  void TearDown() override { xplFileSystemMini::redirectFolders(root()); }

  std::string path(const std::string& name) const { return root() + "/" + name; }
  static int modeOf(const std::string& file) {
    struct stat status {};
    return stat(file.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 07777) : -1;
  }
  std::string made(const std::string& name, mode_t mode) const {
    mkdir(path(name).c_str(), 0700);
    chmod(path(name).c_str(), mode);
    return path(name);
  }
  void givenUserDirs(const std::string& content) const {
    mkdir(path("me/.config").c_str(), 0700);
    writeFile(path("me/.config/user-dirs.dirs"), content);
  }

  TemporaryEnvironment environment;
};

}  // namespace

TEST_F(FoldersLinux, HomeIsTheVariables) {
  EXPECT_EQ(xplFileSystemMini::getFolder_UserHome(), path("me"));
  environment.set("HOME", path("me") + "//");
  EXPECT_EQ(xplFileSystemMini::getFolder_UserHome(), path("me"));
  environment.set("HOME", "/");
  EXPECT_EQ(xplFileSystemMini::getFolder_UserHome(), "/");
}

TEST_F(FoldersLinux, HomeComesFromThePasswordDatabaseWithoutAUsableVariable) {
  const passwd* entry = getpwuid(geteuid());
  if (entry == nullptr) {
    GTEST_SKIP() << "the password database does not know the user who runs the tests";
  }
  const std::string expected = entry->pw_dir;
  environment.unset("HOME");
  EXPECT_EQ(xplFileSystemMini::getFolder_UserHome(), expected);
  environment.set("HOME", "");
  EXPECT_EQ(xplFileSystemMini::getFolder_UserHome(), expected);
  environment.set("HOME", "relative/home");
  EXPECT_EQ(xplFileSystemMini::getFolder_UserHome(), expected);
}

TEST_F(FoldersLinux, UserDataIsTheConfigurationFolderAndIsMade) {
  EXPECT_EQ(xplFileSystemMini::getFolder_UserData(), path("me/.config"));
  EXPECT_EQ(modeOf(path("me/.config")), 0700);
  environment.set("XDG_CONFIG_HOME", path("deep/er/config"));
  EXPECT_EQ(xplFileSystemMini::getFolder_UserData(), path("deep/er/config"));
  EXPECT_EQ(modeOf(path("deep/er/config")), 0700);
}

TEST_F(FoldersLinux, CommonDataIsTheUsersDataFolderAndIsMade) {
  EXPECT_EQ(xplFileSystemMini::getFolder_CommonAppData(), path("me/.local/share"));
  EXPECT_EQ(modeOf(path("me/.local/share")), 0700);
  environment.set("XDG_DATA_HOME", path("data"));
  EXPECT_EQ(xplFileSystemMini::getFolder_CommonAppData(), path("data"));
  EXPECT_EQ(modeOf(path("data")), 0700);
}

TEST_F(FoldersLinux, FolderThatIsThereKeepsItsMode) {
  environment.set("XDG_CONFIG_HOME", made("config", 0755));
  EXPECT_EQ(xplFileSystemMini::getFolder_UserData(), path("config"));
  EXPECT_EQ(modeOf(path("config")), 0755);
}

TEST_F(FoldersLinux, RelativeVariablesAreIgnored) {
  environment.set("XDG_CONFIG_HOME", "config");
  environment.set("XDG_DATA_HOME", "./data");
  environment.set("TMPDIR", "tmp");
  environment.set("XDG_RUNTIME_DIR", "run");
  EXPECT_EQ(xplFileSystemMini::getFolder_UserData(), path("me/.config"));
  EXPECT_EQ(xplFileSystemMini::getFolder_CommonAppData(), path("me/.local/share"));
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("me/.cache/lunaria/tmp/"));
}

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

TEST_F(FoldersLinux, DesktopIsBelowTheHomeFolderAndIsNotMade) {
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), path("me/Desktop"));
  EXPECT_EQ(modeOf(path("me/Desktop")), -1);
  EXPECT_EQ(modeOf(path("me/.config")), -1);
}

TEST_F(FoldersLinux, DesktopIsTheOneThatTheUserChose) {
  givenUserDirs("# comment\nXDG_DOWNLOAD_DIR=\"$HOME/Down\"\nXDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), path("me/Schreibtisch"));
  givenUserDirs("  XDG_DESKTOP_DIR=\"/some/where else\"  # comment with \" in it\n");
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), "/some/where else");
  givenUserDirs("XDG_DESKTOP_DIR=\"/with \\\"quotes\\\" and \\$\"\n");
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), "/with \"quotes\" and $");
  givenUserDirs("XDG_DESKTOP_DIR=\"/first\"\nXDG_DESKTOP_DIR=\"/last\"");
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), "/last");
}

TEST_F(FoldersLinux, DesktopMayBeTheHomeFolderItself) {
  for (const char* line : {"XDG_DESKTOP_DIR=\"$HOME/\"\n", "XDG_DESKTOP_DIR=\"$HOME\"\n"}) {
    givenUserDirs(line);
    EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), path("me")) << line;
  }
}

TEST_F(FoldersLinux, DesktopOfAMalformedLineIsTheUsual) {
  for (const char* line :
       {"XDG_DESKTOP_DIR=\n", "XDG_DESKTOP_DIR=\"\"\n", "XDG_DESKTOP_DIR=\"relative\"\n",
        "XDG_DESKTOP_DIR=\"/unclosed\n", "XDG_DESKTOP_DIR=/unquoted\n", "#XDG_DESKTOP_DIR=\"/comment\"\n",
        "XDG_DESKTOP_DIR=\"$HOMELAND/x\"\n", "XDG_DESKTOP_DIR=\"", "XDG_DESKTOP_DIR=\"\\"}) {
    givenUserDirs(line);
    EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), path("me/Desktop")) << line;
  }
}

TEST_F(FoldersLinux, DesktopListLiesWhereTheConfigurationLies) {
  environment.set("XDG_CONFIG_HOME", made("config", 0700));
  writeFile(path("config/user-dirs.dirs"), "XDG_DESKTOP_DIR=\"/chosen\"\n");
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), "/chosen");
}

TEST_F(FoldersLinux, PipeInPlaceOfTheDesktopListIsNotWaitedFor) {
  mkdir(path("me/.config").c_str(), 0700);
  ASSERT_EQ(mkfifo(path("me/.config/user-dirs.dirs").c_str(), 0600), 0);
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), path("me/Desktop"));
}

TEST_F(FoldersLinux, FontsLieWithTheUsersData) {
  EXPECT_EQ(xplFileSystemMini::getFolder_Fonts(), path("me/.local/share/fonts"));
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

TEST_F(FoldersLinux, NoneEndsWithASeparatorButTheTemporaryOne) {
  for (const std::string& folder :
       {xplFileSystemMini::getFolder_UserHome(), xplFileSystemMini::getFolder_CommonAppData(),
        xplFileSystemMini::getFolder_UserData(), xplFileSystemMini::getFolder_Desktop(),
        xplFileSystemMini::getFolder_Fonts()}) {
    ASSERT_NE(folder, "");
    EXPECT_NE(folder.back(), '/') << folder;
  }
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary().back(), '/');
  EXPECT_TRUE(logError().isEmpty());
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

TEST(ProgramFileLinux, IsTheRunningOne) {
  EXPECT_EQ(xplFileSystemMini::fileNameOf(xplFileSystemMini::applicationFullPath()), "test_support");
  EXPECT_EQ(xplFileSystemMini::applicationFullPath().front(), '/');
}
