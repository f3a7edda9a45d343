// Tests the log of a run: its file, its opening and closing entries, and the copies on the desktop.
#include <regex>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/log.h"

namespace {

class Log : public PrivateFolders {
 protected:
  // The file of a second log, which the tests make and end.
  std::string path() const { return xplFileSystemMini::getFolder_Temporary() + "Other.xplLog.txt"; }
  std::string copy() const {
    return xplFileSystemMini::joinPath(xplFileSystemMini::getFolder_Desktop(), "Other.xplLog.txt");
  }
  static std::string textOf(const std::string& file) {
    std::string text = readFile(file);
    std::erase(text, '\r');
    return text;
  }
  bool wasCopied() const { return xplFileSystemMini::fileExists(copy()); }

  const std::string finished = "Info>\txplLog starting\nInfo>\txplLog closing\n";
  const std::string unfinished = "Info>\txplLog starting\nInfo>\tin the middle\n";
  const std::string withError = "Info>\txplLog starting\nERROR>\tbad\nInfo>\txplLog closing\n";
};

}  // namespace

TEST_F(Log, FileLiesInTheTemporaryFolderUnderTheApplicationsName) {
  const xplLog log("Other", true, true);
  EXPECT_EQ(log.path(), path());
  EXPECT_TRUE(xplFileSystemMini::fileExists(path()));
  EXPECT_EQ(logError().path(), path());
  EXPECT_EQ(logWarning().path(), path());
  EXPECT_EQ(logInfo().path(), path());
}

TEST_F(Log, FileWithoutAnApplicationNameIsNamedAfterTheProgram) {
  const xplLog log("", true, true);
  EXPECT_EQ(log.path(), xplFileSystemMini::getFolder_Temporary() + xplFileSystemMini::applicationFileName() +
                            ".xplLog.txt");
  EXPECT_NE(xplFileSystemMini::applicationFileName(), "");
}

TEST_F(Log, OpeningEntriesComeInTheirOrder) {
  const xplLog log("Other", true, true);
  const std::regex expected(
      "     \t\\d{4}-\\d\\d-\\d\\d  \\d\\d:\\d\\d:\\d\\d\n"
      "Info>\txplLog starting\n"
      "Info>\tLog filename:[^\n]*Other\\.xplLog\\.txt\n"
      "Info>\tApplication build timestamp:[A-Z][a-z]{2} [ 1-3]\\d \\d{4}  \\d\\d:\\d\\d:\\d\\d\n"
      "Info>\tUsing the xpl support library, https://xpl\\.example/\n"
      "Info>\tFile System Report by xplFileSystemMini\n[^]*End of file system report\n-+\n\n");
  EXPECT_TRUE(std::regex_match(textOf(path()), expected)) << textOf(path());
  EXPECT_NE(textOf(path()).find("Info>\tLog filename:" + path() + "\n"), std::string::npos);
  EXPECT_NE(textOf(path()).find("Info>\t" + xplFileSystemMini::report() + "\n"), std::string::npos);
}

TEST_F(Log, FileIsEmptiedAtTheStartAndGrowsAfterwards) {
  writeFile(path(), finished + "of yesterday\n");
  const xplLog log("Other", true, true);
  logInfo().add("of today");
  EXPECT_EQ(textOf(path()).find("of yesterday"), std::string::npos);
  EXPECT_NE(textOf(path()).find("of today"), std::string::npos);
}

TEST_F(Log, ClosingEntryIsTheLast) {
  { const xplLog log("Other", true, true); }
  const std::string text = textOf(path());
  const std::string closing = "Info>\txplLog closing\n";
  ASSERT_GE(text.size(), closing.size());
  EXPECT_EQ(text.substr(text.size() - closing.size()), closing);
}

TEST_F(Log, SecondLogGivesTheWritersBackAsTheyWere) {
  logWarning().add("before");
  const std::string outer = logInfo().path();
  logInfo().echoToDebugger = true;
  {
    const xplLog log("Other", true, true);
    EXPECT_TRUE(logWarning().isEmpty());
    EXPECT_FALSE(logInfo().echoToDebugger);
    logError().add("inner");
  }
  EXPECT_TRUE(logInfo().echoToDebugger);
  logInfo().echoToDebugger = false;
  EXPECT_EQ(logInfo().path(), outer);
  EXPECT_FALSE(logWarning().isEmpty());
  EXPECT_TRUE(logError().isEmpty());
  EXPECT_EQ(countEntries("inner"), 0);
}

TEST_F(Log, UnfinishedPreviousRunIsCopiedBeforeItIsEmptied) {
  writeFile(path(), unfinished);
  const xplLog log("Other", true, true);
  EXPECT_EQ(readFile(copy()), unfinished);
}

TEST_F(Log, UnfinishedPreviousRunStaysUncopiedWhenNotAsked) {
  writeFile(path(), unfinished);
  const xplLog log("Other", false, true);
  EXPECT_FALSE(wasCopied());
}

TEST_F(Log, UnfinishedPreviousRunWithErrorsIsCopiedForItsErrorsAlone) {
  writeFile(path(), unfinished + "ERROR>\tbad\n");
  const xplLog log("Other", false, true);
  EXPECT_TRUE(wasCopied());
}

TEST_F(Log, FinishedPreviousRunWithoutErrorsIsNotCopied) {
  writeFile(path(), finished);
  const xplLog log("Other", true, true);
  EXPECT_FALSE(wasCopied());
}

TEST_F(Log, FinishedPreviousRunWithErrorsIsCopied) {
  writeFile(path(), withError);
  const xplLog log("Other", true, true);
  EXPECT_EQ(readFile(copy()), withError);
}

TEST_F(Log, FinishedPreviousRunWithErrorsStaysUncopiedWhenNotAsked) {
  writeFile(path(), withError);
  const xplLog log("Other", true, false);
  EXPECT_FALSE(wasCopied());
}

TEST_F(Log, FileThatIsNoLogIsNotCopied) {
  writeFile(path(), "shopping list\n");
  const xplLog log("Other", true, true);
  EXPECT_FALSE(wasCopied());
}

TEST_F(Log, MissingPreviousLogIsNotCopied) {
  const xplLog log("Other", true, true);
  EXPECT_FALSE(wasCopied());
}

TEST_F(Log, CopyReplacesAnOlderOne) {
  writeFile(copy(), "an older and much longer copy of some other run");
  writeFile(path(), unfinished);
  const xplLog log("Other", true, true);
  EXPECT_EQ(readFile(copy()), unfinished);
}

TEST_F(Log, RunWithAnErrorEntryIsCopiedAtItsEnd) {
  {
    const xplLog log("Other", false, false);
    logError().add("bad");
    EXPECT_FALSE(wasCopied());
  }
  EXPECT_EQ(readFile(copy()), readFile(path()));
  EXPECT_NE(readFile(copy()).find("xplLog closing"), std::string::npos);
}

TEST_F(Log, RunWithoutErrorEntriesIsNotCopiedAtItsEnd) {
  {
    const xplLog log("Other", true, true);
    logWarning().add("only a warning");
  }
  EXPECT_FALSE(wasCopied());
}

TEST_F(Log, CopyThatFailsIsIgnored) {
  writeFile(path(), unfinished);
  ASSERT_TRUE(xplFileSystemMini::createFolder(copy()));  // a folder is in the way
  const xplLog log("Other", true, true);
  EXPECT_TRUE(xplFileSystemMini::folderExists(copy()));
  EXPECT_NE(textOf(path()).find("xplLog starting"), std::string::npos);
}

TEST_F(Log, FolderInTheFilesPlaceLosesTheEntriesAndNothingElse) {
  ASSERT_TRUE(xplFileSystemMini::createFolder(path()));
  {
    const xplLog log("Other", true, true);
    logError().add("lost");
  }
  EXPECT_TRUE(xplFileSystemMini::folderExists(path()));
  EXPECT_FALSE(wasCopied());
}

TEST_F(Log, EmptyAndBinaryPreviousLogsAreSimplyEmptied) {
  for (const std::string& content :
       {std::string(), std::string(100000, '\0'), std::string("\xff\xfe\n\x80")}) {
    writeFile(path(), content);
    { const xplLog log("Other", true, true); }
    EXPECT_EQ(textOf(path()).substr(0, 6), "     \t");
    EXPECT_FALSE(wasCopied());
  }
}
