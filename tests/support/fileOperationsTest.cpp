// Tests what is done with files: finding, making, appending, copying, replacing.
#include <string>
#include <vector>

#include "support/fileSystemFixture.h"

TEST_F(FileSystem, FilesAndFoldersAreToldApart) {
  writeFile(path("file"), "x");
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("folder")));
  EXPECT_TRUE(xplFileSystemMini::fileExists(path("file")));
  EXPECT_FALSE(xplFileSystemMini::folderExists(path("file")));
  EXPECT_FALSE(xplFileSystemMini::fileExists(path("folder")));
  EXPECT_TRUE(xplFileSystemMini::folderExists(path("folder")));
  EXPECT_FALSE(xplFileSystemMini::fileExists(path("absent")));
  EXPECT_FALSE(xplFileSystemMini::folderExists(path("absent")));
  EXPECT_FALSE(xplFileSystemMini::fileExists(""));
  EXPECT_FALSE(xplFileSystemMini::folderExists(""));
}

TEST_F(FileSystem, CreateFolderMakesOneLevelOnce) {
  EXPECT_TRUE(xplFileSystemMini::createFolder(path("folder")));
  EXPECT_FALSE(xplFileSystemMini::createFolder(path("folder")));
  EXPECT_TRUE(xplFileSystemMini::folderExists(path("folder")));
  EXPECT_FALSE(xplFileSystemMini::createFolder(path("absent/inner")));
  EXPECT_FALSE(xplFileSystemMini::folderExists(path("absent")));
}

TEST_F(FileSystem, EmptyFileEmptiesOrMakes) {
  writeFile(path("file"), "content");
  EXPECT_TRUE(xplFileSystemMini::emptyFile(path("file")));
  EXPECT_EQ(readFile(path("file")), "");
  EXPECT_TRUE(xplFileSystemMini::emptyFile(path("new")));
  EXPECT_TRUE(xplFileSystemMini::fileExists(path("new")));
}

TEST_F(FileSystem, EmptyFileFailsWithoutAFolderAndOnAFolder) {
  EXPECT_FALSE(xplFileSystemMini::emptyFile(path("absent/file")));
  EXPECT_FALSE(xplFileSystemMini::emptyFile(root()));
}

TEST_F(FileSystem, AppendAddsTextWithThePlatformsLineEnds) {
  const std::string end = xplFileSystemMini::lineEnd();
  EXPECT_TRUE(xplFileSystemMini::appendToFile(path("file"), "one\ntwo\n"));
  EXPECT_TRUE(xplFileSystemMini::appendToFile(path("file"), "three"));
  EXPECT_EQ(readFile(path("file")), "one" + end + "two" + end + "three");
}

TEST_F(FileSystem, AppendFailsWithoutAFolderAndOnAFolder) {
  EXPECT_FALSE(xplFileSystemMini::appendToFile(path("absent/file"), "text"));
  EXPECT_FALSE(xplFileSystemMini::appendToFile(root(), "text"));
}

TEST_F(FileSystem, CopyPutsTheFileIntoTheFolderUnderItsName) {
  const std::string content("bytes \0 \r\n \xff", 12);
  writeFile(path("file"), content);
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("folder")));
  EXPECT_TRUE(xplFileSystemMini::copyFileIntoFolder(path("file"), path("folder")));
  EXPECT_EQ(readFile(path("folder/file")), content);
  EXPECT_EQ(readFile(path("file")), content);
}

TEST_F(FileSystem, CopyReplacesWhatIsThere) {
  writeFile(path("file"), "new");
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("folder")));
  writeFile(path("folder/file"), "older and longer");
  EXPECT_TRUE(xplFileSystemMini::copyFileIntoFolder(path("file"), path("folder")));
  EXPECT_EQ(readFile(path("folder/file")), "new");
}

TEST_F(FileSystem, CopyFailsWithoutFileOrFolder) {
  writeFile(path("file"), "content");
  EXPECT_FALSE(xplFileSystemMini::copyFileIntoFolder(path("absent"), root()));
  EXPECT_FALSE(xplFileSystemMini::copyFileIntoFolder(path("file"), path("absent")));
  EXPECT_FALSE(xplFileSystemMini::copyFileIntoFolder(path("file"), ""));
}

TEST_F(FileSystem, CopyOntoItselfLeavesTheFile) {
  writeFile(path("file"), "content");
  xplFileSystemMini::copyFileIntoFolder(path("file"), root());
  EXPECT_EQ(readFile(path("file")), "content");
}

TEST_F(FileSystem, ReplaceMakesAndReplacesAFileByteByByte) {
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("folder")));
  std::string message;
  EXPECT_TRUE(xplFileSystemMini::replaceFile(path("folder/file"), "one\n", message));
  EXPECT_EQ(readFile(path("folder/file")), "one\n");
  const std::string second("\0\r\n\xff", 4);
  EXPECT_TRUE(xplFileSystemMini::replaceFile(path("folder/file"), second, message));
  EXPECT_EQ(readFile(path("folder/file")), second);
  EXPECT_TRUE(xplFileSystemMini::replaceFile(path("folder/file"), "", message));
  EXPECT_EQ(readFile(path("folder/file")), "");
  EXPECT_EQ(filesIn(path("folder")), std::vector<std::string>{"file"});
}

TEST_F(FileSystem, ReplaceFailsWithTheSystemsMessageWithoutAFolder) {
  std::string message;
  EXPECT_FALSE(xplFileSystemMini::replaceFile(path("absent/file"), "text", message));
  EXPECT_NE(message, "");
  EXPECT_FALSE(xplFileSystemMini::folderExists(path("absent")));
}

TEST_F(FileSystem, ReplaceFailsOnAFolderAndLeavesNothingBehind) {
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("folder")));
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("folder/file")));
  std::string message;
  EXPECT_FALSE(xplFileSystemMini::replaceFile(path("folder/file"), "text", message));
  EXPECT_NE(message, "");
  EXPECT_EQ(filesIn(path("folder")), std::vector<std::string>{"file"});
  EXPECT_TRUE(xplFileSystemMini::folderExists(path("folder/file")));
}
