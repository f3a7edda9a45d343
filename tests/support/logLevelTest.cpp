// Tests the writers: the form of an entry, stamps, indentation, formatting and their switches.
#include <algorithm>
#include <ctime>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"

namespace {

class LogLevel : public PrivateFolders {
 protected:
  // What the log has gained since the last call.
  std::string newText() {
    const std::string all = logText();
    const std::string added = all.substr(m_seen);
    m_seen = all.size();
    return added;
  }
  std::string stamp() const {
    const auto local = xplClock::localTime(xplClock::now());
    char text[100] = "";
    std::strftime(text, sizeof text, "     \t%Y-%m-%d  %H:%M:%S\n", &*local);
    return text;
  }
  void SetUp() override { newText(); }

 private:
  std::size_t m_seen = 0;
};

}  // namespace

TEST_F(LogLevel, EntryIsPrefixTextAndLineEnd) {
  logError().add("first");
  logWarning().add("second");
  logInfo().add("third");
  EXPECT_EQ(newText(), "ERROR>\tfirst\nWarning>\tsecond\nInfo>\tthird\n");
}

TEST_F(LogLevel, FirstEntryOfASecondGetsATimestampLine) {
  clock.advance(1000000);
  logInfo().add("first");
  logInfo().add("second");
  EXPECT_EQ(newText(), stamp() + "Info>\tfirst\nInfo>\tsecond\n");
}

TEST_F(LogLevel, LevelsShareTheSecondOfTheStamp) {
  clock.advance(1000000);
  logWarning().add("first");
  logError().add("second");
  logInfo().add("third");
  EXPECT_EQ(newText(), stamp() + "Warning>\tfirst\nERROR>\tsecond\nInfo>\tthird\n");
}

TEST_F(LogLevel, AClockThatIsSetBackStampsAgain) {
  clock.advance(-3600 * std::int64_t{1000000});
  logInfo().add("earlier");
  EXPECT_EQ(newText(), stamp() + "Info>\tearlier\n");
}

TEST_F(LogLevel, AMomentWithoutLocalTimeGetsNoStamp) {
  clock.set({std::int64_t{1} << 62, 0});
  logInfo().add("far");
  EXPECT_EQ(newText(), "Info>\tfar\n");
}

TEST_F(LogLevel, EntriesInABlockAreIndentedAfterThePrefix) {
  clock.advance(1000000);
  const logBlockOfCode outer("outer", "start", "end");
  const logBlockOfCode inner("inner", "start", "end");
  logInfo().add("text");
  EXPECT_EQ(newText(), stamp() + "Info>\tstart: outer\nInfo>\t| start: inner\nInfo>\t| | text\n");
}

TEST_F(LogLevel, PercentSignsInATextAreNoFormat) {
  logInfo().add("100%s %n");
  EXPECT_EQ(newText(), "Info>\t100%s %n\n");
}

TEST_F(LogLevel, AddfFormats) {
  logWarning().addf("%s:%i %.2f", "text", -5, 1.5);
  EXPECT_EQ(newText(), "Warning>\ttext:-5 1.50\n");
}

TEST_F(LogLevel, AddfCutsWhatDoesNotFit) {
  const std::string longText(10000, 'x');
  logInfo().addf("%s", longText.c_str());
  EXPECT_EQ(newText(), "Info>\t" + std::string(7999, 'x') + "\n");
}

TEST_F(LogLevel, AddCutsNothing) {
  const std::string longText(10000, 'x');
  logInfo().add(longText);
  EXPECT_EQ(newText(), "Info>\t" + longText + "\n");
}

TEST_F(LogLevel, IsEmptyUntilItsOwnFirstEntry) {
  EXPECT_TRUE(logError().isEmpty());
  EXPECT_TRUE(logWarning().isEmpty());
  EXPECT_FALSE(logInfo().isEmpty());
  logWarning().add("text");
  EXPECT_TRUE(logError().isEmpty());
  EXPECT_FALSE(logWarning().isEmpty());
}

TEST_F(LogLevel, WithoutAPathItDropsEntries) {
  xplLogLevel level("Test>\t");
  level.add("lost");
  EXPECT_TRUE(level.isEmpty());
  EXPECT_EQ(newText(), "");
}

TEST_F(LogLevel, PathThatCannotBeWrittenLosesTheEntrySilently) {
  xplLogLevel level("Test>\t");
  level.setPath(xplFileSystemMini::joinPath(root(), "absent/log.txt"));
  level.add("lost");
  EXPECT_FALSE(level.isEmpty());
  EXPECT_FALSE(xplFileSystemMini::folderExists(xplFileSystemMini::joinPath(root(), "absent")));
}

TEST_F(LogLevel, SetPathBeginsAnEmptyLevel) {
  xplLogLevel level("Test>\t");
  const std::string path = xplFileSystemMini::joinPath(root(), "level.txt");
  level.setPath(path);
  EXPECT_TRUE(level.isEmpty());
  level.add("text");
  EXPECT_FALSE(level.isEmpty());
  level.setPath(path);
  EXPECT_TRUE(level.isEmpty());
  EXPECT_EQ(level.path(), path);
}

TEST_F(LogLevel, EntriesUseTheLineEndOfThePlatform) {
  const std::string path = xplFileSystemMini::joinPath(root(), "level.txt");
  xplLogLevel level("Test>\t");
  level.setPath(path);
  level.add("two\nlines");
  const std::string end = xplFileSystemMini::lineEnd();
  EXPECT_EQ(readFile(path), "Test>\ttwo" + end + "lines" + end);
}

TEST_F(LogLevel, KeptSwitchOnlyIfFileExistsIsOffEverywhere) {
  EXPECT_FALSE(logError().onlyIfFileExists);
  EXPECT_FALSE(logWarning().onlyIfFileExists);
  EXPECT_FALSE(logInfo().onlyIfFileExists);
}

TEST_F(LogLevel, KeptEntriesBringADeletedFileBack) {
  const std::string path = logInfo().path();
  ASSERT_EQ(std::remove(path.c_str()), 0);
  logInfo().add("back");
  EXPECT_EQ(logText(), "Info>\tback\n");
}

TEST_F(LogLevel, OnlyIfFileExistsKeepsADeletedFileAway) {
  const std::string path = xplFileSystemMini::joinPath(root(), "level.txt");
  xplLogLevel level("Test>\t");
  level.setPath(path);
  level.onlyIfFileExists = true;
  level.add("lost");
  EXPECT_FALSE(xplFileSystemMini::fileExists(path));
  EXPECT_TRUE(level.isEmpty());
  writeFile(path, "");
  level.add("kept");
  EXPECT_EQ(readFile(path), std::string("Test>\tkept") + xplFileSystemMini::lineEnd());
}

TEST_F(LogLevel, EchoIsOffUntilItIsSet) {
  EXPECT_FALSE(logError().echoToDebugger);
  EXPECT_FALSE(logWarning().echoToDebugger);
  EXPECT_FALSE(logInfo().echoToDebugger);
}

TEST(StringFormat, FormatsLikePrintf) {
  EXPECT_EQ(stringFormat("%s-%03d|%u|%lld", "a", 7, 3000000000U, 1LL << 40),
            "a-007|3000000000|1099511627776");
}

TEST(StringFormat, CutsAt7999Bytes) {
  const std::string fits(7999, 'a');
  EXPECT_EQ(stringFormat("%s", fits.c_str()), fits);
  EXPECT_EQ(stringFormat("%sb", fits.c_str()), fits);
}

TEST(LogWriters, DropEntriesWhileNoLogLives) {
  ASSERT_EQ(logError().path(), "");
  logError().add("nowhere");
  logWarning().add("nowhere");
  logInfo().add("nowhere");
  EXPECT_TRUE(logError().isEmpty());
  EXPECT_TRUE(logWarning().isEmpty());
  EXPECT_TRUE(logInfo().isEmpty());
}
