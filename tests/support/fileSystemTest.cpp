// Tests the file system where it is alike on every platform: paths, redirected folders, the report.
#include <sstream>
#include <string>
#include <vector>

#include "support/fileSystemFixture.h"

namespace {

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

}  // namespace

TEST_F(FileSystem, JoinPutsOneSeparatorBetween) {
  const std::string expected = "a" + separator + "b";
  EXPECT_EQ(xplFileSystemMini::joinPath("a", "b"), expected);
  EXPECT_EQ(xplFileSystemMini::joinPath("a" + separator, "b"), expected);
  EXPECT_EQ(xplFileSystemMini::joinPath("a", separator + "b"), expected);
  EXPECT_EQ(xplFileSystemMini::joinPath("a/" + separator, "/" + separator + "b"), expected);
}

TEST_F(FileSystem, JoinKeepsTheRootOfTheFileSystem) {
  EXPECT_EQ(xplFileSystemMini::joinPath(separator, "b"), separator + "b");
}

TEST_F(FileSystem, JoinToAnUnknownFolderGivesARelativeName) {
  EXPECT_EQ(xplFileSystemMini::joinPath("", "b"), "b");
}

TEST_F(FileSystem, FileNameIsWhatFollowsTheLastSeparatorOfEitherKind) {
  EXPECT_EQ(xplFileSystemMini::fileNameOf("/usr/bin/lunaria"), "lunaria");
  EXPECT_EQ(xplFileSystemMini::fileNameOf("C:\\Windows\\Lunaria.scr"), "Lunaria.scr");
  EXPECT_EQ(xplFileSystemMini::fileNameOf("C:\\Windows/Lunaria.scr"), "Lunaria.scr");
  EXPECT_EQ(xplFileSystemMini::fileNameOf("C:/Windows\\Lunaria.scr"), "Lunaria.scr");
  EXPECT_EQ(xplFileSystemMini::fileNameOf("folder/"), "");
}

TEST_F(FileSystem, PathWithoutSeparatorIsAllFileName) {
  EXPECT_EQ(xplFileSystemMini::fileNameOf("Lunaria.scr"), "Lunaria.scr");
  EXPECT_EQ(xplFileSystemMini::folderOf("Lunaria.scr"), "");
  EXPECT_EQ(xplFileSystemMini::fileNameOf(""), "");
  EXPECT_EQ(xplFileSystemMini::folderOf(""), "");
}

TEST_F(FileSystem, FolderIsWhatPrecedesTheLastSeparatorOfEitherKind) {
  EXPECT_EQ(xplFileSystemMini::folderOf("/usr/bin/lunaria"), "/usr/bin");
  EXPECT_EQ(xplFileSystemMini::folderOf("C:\\Windows\\Lunaria.scr"), "C:\\Windows");
  EXPECT_EQ(xplFileSystemMini::folderOf("C:\\Windows/Lunaria.scr"), "C:\\Windows");
  EXPECT_EQ(xplFileSystemMini::folderOf("/lunaria"), "");
}

TEST_F(FileSystem, RedirectedFoldersLieBelowTheRootAndExist) {
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary(), path("tmp") + separator);
  EXPECT_EQ(xplFileSystemMini::getFolder_UserHome(), path("home"));
  EXPECT_EQ(xplFileSystemMini::getFolder_CommonAppData(), path("allUsersData"));
  EXPECT_EQ(xplFileSystemMini::getFolder_UserData(), path("userData"));
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), path("Desktop"));
  EXPECT_EQ(xplFileSystemMini::getFolder_Fonts(), path("fonts"));
  for (const char* name : {"tmp", "home", "allUsersData", "userData", "Desktop", "fonts"}) {
    EXPECT_TRUE(xplFileSystemMini::folderExists(path(name))) << name;
  }
}

TEST_F(FileSystem, FoldersByKind) {
  EXPECT_EQ(xplFileSystemMini::getFolderByKind(1), path("allUsersData"));
  EXPECT_EQ(xplFileSystemMini::getFolderByKind(2), path("tmp") + separator);
  EXPECT_EQ(xplFileSystemMini::getFolderByKind(3), path("userData"));
  for (const int kind : {0, 4, -1, 1000}) {
    EXPECT_EQ(xplFileSystemMini::getFolderByKind(kind), "") << kind;
  }
}

TEST_F(FileSystem, TheProgramsOwnFileIsFound) {
  const std::string full = xplFileSystemMini::applicationFullPath();
  EXPECT_TRUE(xplFileSystemMini::fileExists(full)) << full;
  EXPECT_EQ(xplFileSystemMini::applicationFileName().rfind("test_support", 0), 0U);
  EXPECT_EQ(xplFileSystemMini::joinPath(xplFileSystemMini::applicationFolder(),
                                        xplFileSystemMini::applicationFileName()),
            full);
}

TEST_F(FileSystem, ReportHoldsTheFoldersOneALine) {
  const std::string full = xplFileSystemMini::applicationFullPath();
  EXPECT_EQ(xplFileSystemMini::report(),
            "File System Report by xplFileSystemMini\n----------------------\n"
            "App full path filename:" +
                full +
                "\n"
                "App filename:" +
                xplFileSystemMini::fileNameOf(full) +
                "\n"
                "App path:" +
                xplFileSystemMini::folderOf(full) +
                "\n"
                "System's Temp folder:" +
                path("tmp") + separator +
                "\n"
                "User's Temp folder:" +
                path("tmp") + separator +
                "\n"
                "User's home folder:" +
                path("home") +
                "\n"
                "Desktop folder:" +
                path("Desktop") +
                "\n"
                "Fonts folder:" +
                path("fonts") +
                "\n"
                "AppData path:" +
                path("allUsersData") +
                "\n"
                "UserData path:" +
                path("userData") +
                "\n"
                "End of file system report\n----------------------\n");
}

TEST_F(FileSystem, KeptReportNamesTheTemporaryFolderTwice) {
  const auto lines = linesOf(xplFileSystemMini::report());
  ASSERT_EQ(lines.size(), 14U);  // ten between two of head and two of end
  EXPECT_EQ(lines[5].substr(lines[5].find(':')), lines[6].substr(lines[6].find(':')));
  EXPECT_EQ(lines[5].rfind("System's Temp folder:", 0), 0U);
  EXPECT_EQ(lines[6].rfind("User's Temp folder:", 0), 0U);
}

TEST_F(FileSystem, KeptReportCallsTheFolderOfAllUsersAppData) {
  const auto lines = linesOf(xplFileSystemMini::report());
  ASSERT_EQ(lines.size(), 14U);
  EXPECT_EQ(lines[10], "AppData path:" + xplFileSystemMini::getFolder_CommonAppData());
  EXPECT_NE(lines[10], "AppData path:" + xplFileSystemMini::getFolder_UserData());
}
