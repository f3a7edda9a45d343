// Tests the file operations on Windows: line ends, links, files that are read-only or that somebody else
// holds open.
#include <windows.h>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/settings.h"

namespace {

class FilesWin : public PrivateFolders {
 protected:
  std::string path(const std::string& name) const { return root() + "\\" + name; }
};

// Holds a file open so that nobody else can open it, until the object goes.
class HeldFile {
 public:
  explicit HeldFile(const std::string& path)
      : m_handle(CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                             nullptr)) {}
  ~HeldFile() { CloseHandle(m_handle); }
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  bool isHeld() const { return m_handle != INVALID_HANDLE_VALUE; }

 private:
  HANDLE m_handle;
};

}  // namespace

TEST_F(FilesWin, AppendEndsLinesWithCarriageReturnAndLineFeed) {
  ASSERT_TRUE(xplFileSystemMini::appendToFile(path("file"), "one\n\ntwo\n"));
  EXPECT_EQ(readFile(path("file")), "one\r\n\r\ntwo\r\n");
}

TEST_F(FilesWin, JoinTakesEitherSeparatorForOne) {
  EXPECT_EQ(xplFileSystemMini::joinPath("C:\\a/", "/\\b"), "C:\\a\\b");
}

TEST_F(FilesWin, LinkAtTheFilesPlaceIsNeitherEmptiedNorAppendedTo) {
  writeFile(path("victim"), "precious");
  CreateSymbolicLinkA(path("file").c_str(), path("victim").c_str(), 0);
  const DWORD attributes = GetFileAttributesA(path("file").c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    GTEST_SKIP() << "this system lets the test make no symbolic link";
  }
  EXPECT_FALSE(xplFileSystemMini::emptyFile(path("file")));
  EXPECT_FALSE(xplFileSystemMini::appendToFile(path("file"), "text"));
  EXPECT_EQ(readFile(path("victim")), "precious");
}

TEST_F(FilesWin, ReadOnlyFileIsNotReplacedAndStaysWhole) {
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("folder")));
  writeFile(path("folder\\file"), "old");
  ASSERT_NE(SetFileAttributesA(path("folder\\file").c_str(), FILE_ATTRIBUTE_READONLY), FALSE);
  std::string message;
  EXPECT_FALSE(xplFileSystemMini::replaceFile(path("folder\\file"), "new", message));
  EXPECT_NE(message, "");
  EXPECT_EQ(readFile(path("folder\\file")), "old");
  EXPECT_EQ(filesIn(path("folder")), std::vector<std::string>{"file"});
  SetFileAttributesA(path("folder\\file").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(FilesWin, AppendGoesOnWhileSomebodyReads) {
  writeFile(path("file"), "one\r\n");
  const HANDLE reader = CreateFileA(path("file").c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(reader, INVALID_HANDLE_VALUE);
  EXPECT_TRUE(xplFileSystemMini::appendToFile(path("file"), "two\n"));
  CloseHandle(reader);
  EXPECT_EQ(readFile(path("file")), "one\r\ntwo\r\n");
}

TEST_F(FilesWin, SettingsFileThatSomebodyHoldsOpenIsReportedAndNeverOverwritten) {
  const std::string folder = xplFileSystemMini::getFolder_UserData() + "\\Lunaria software";
  const std::string file = folder + "\\Lunaria screensaver.ini";
  ASSERT_TRUE(xplFileSystemMini::createFolder(folder));
  writeFile(file, "a=1\r\n");
  {
    const HeldFile held(file);
    ASSERT_TRUE(held.isHeld());
    xplSettings store(xplSettings::scopeUser);
    EXPECT_EQ(countEntries("#8551: Could not open file:" + file, "ERROR"), 1);
    EXPECT_EQ(countEntries("Error #1351: loading xplSettings from file:" + file, "ERROR"), 1);
    store.set("b", "2");
    EXPECT_EQ(store.get("b"), "2");
    EXPECT_EQ(countEntries("Error #1352c: saving xplSettings to file:" + file, "ERROR"), 1);
  }
  EXPECT_EQ(readFile(file), "a=1\r\n");
  EXPECT_EQ(filesIn(folder), std::vector<std::string>{"Lunaria screensaver.ini"});
}

TEST_F(FilesWin, SettingsFileThatSomebodyHoldsOpenOnlyWhileItIsSavedStaysWhole) {
  const std::string folder = xplFileSystemMini::getFolder_UserData() + "\\Lunaria software";
  const std::string file = folder + "\\Lunaria screensaver.ini";
  xplSettings store(xplSettings::scopeUser);
  store.set("a", "1");
  {
    const HeldFile held(file);
    ASSERT_TRUE(held.isHeld());
    store.set("a", "2");
    EXPECT_EQ(countEntries("Error #1352c: saving xplSettings to file:" + file, "ERROR"), 1);
  }
  EXPECT_EQ(readFile(file), "a=1\r\n");
  store.set("b", "3");
  EXPECT_EQ(readFile(file), "a=2\r\nb=3\r\n");
}
