// Tests the well-known folders on Linux: variables, defaults, and folders that are made.
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/linux/foldersLinuxFixture.h"

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

TEST(ProgramFileLinux, IsTheRunningOne) {
  EXPECT_EQ(xplFileSystemMini::fileNameOf(xplFileSystemMini::applicationFullPath()), "test_support");
  EXPECT_EQ(xplFileSystemMini::applicationFullPath().front(), '/');
}
