// Tests the well-known folders on Windows against the variables that the system sets.
#include <cctype>
#include <cstdlib>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"

namespace {

class FoldersWin : public PrivateFolders {
 protected:
  void SetUp() override { xplFileSystemMini::redirectFolders(""); }
  void TearDown() override { xplFileSystemMini::redirectFolders(root()); }
  static std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
  }
};

}  // namespace

TEST_F(FoldersWin, AreTheSystems) {
  EXPECT_EQ(xplFileSystemMini::getFolder_UserHome(), variable("USERPROFILE"));
  EXPECT_EQ(xplFileSystemMini::getFolder_UserData(), variable("APPDATA"));
  EXPECT_EQ(xplFileSystemMini::getFolder_CommonAppData(), variable("ProgramData"));
  EXPECT_EQ(xplFileSystemMini::getFolder_Desktop(), variable("USERPROFILE") + "\\Desktop");
  std::string fonts = xplFileSystemMini::getFolder_Fonts();
  for (char& character : fonts) {
    character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  }
  EXPECT_EQ(fonts, "c:\\windows\\fonts");
}

TEST_F(FoldersWin, TemporaryFolderEndsWithABackslash) {
  EXPECT_EQ(xplFileSystemMini::getFolder_Temporary().back(), '\\');
}

TEST_F(FoldersWin, ProgramIsTheRunningOne) {
  EXPECT_EQ(xplFileSystemMini::applicationFileName(), "test_support.exe");
  EXPECT_EQ(xplFileSystemMini::applicationFullPath().substr(1, 2), ":\\");
}
