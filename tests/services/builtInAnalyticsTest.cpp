// What the stand-in for the analytics library writes down.
#include <cstdio>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "services/builtInAnalytics.h"
#include "support/fileSystem.h"

namespace {

class BuiltIn : public PrivateFolders {
 protected:
  BuiltIn() : folder(xplFileSystemMini::getFolder_CommonAppData()) {}

  std::string path() const { return xplFileSystemMini::joinPath(folder, "usage.txt"); }
  // The whole file with "\n" line ends.
  std::string content() const {
    std::string text = readFile(path());
    for (auto end = text.find('\r'); end != std::string::npos; end = text.find('\r')) {
      text.erase(end, 1);
    }
    return text;
  }
  int session(BuiltInAnalytics& library) {
    library.setFilePath(folder);
    library.createConfig("reports.lunaria.invalid", "4501782936", "5.4.1", "May 21 2016  21:15:00", false);
    library.start();
    clock.advance(27'000'000);
    return library.stop();
  }

  std::string folder;
  BuiltInAnalytics analytics;
  const std::string line =
      "start=2016-05-21T21:15:00Z stop=2016-05-21T21:15:27Z version=5.4.1 build=May 21 2016  21:15:00\n";
};

TEST_F(BuiltIn, WritesOneLineASession) {
  EXPECT_EQ(session(analytics), 0);
  EXPECT_EQ(content(), line);
  EXPECT_EQ(analytics.takeErrors(), "");
}

TEST_F(BuiltIn, AddsToTheLinesBefore) {
  writeFile(path(), "an earlier session\n");
  session(analytics);
  EXPECT_EQ(content(), "an earlier session\n" + line);
}

TEST_F(BuiltIn, TellsNothingOfTheMachineOrItsUser) {
  session(analytics);
  EXPECT_EQ(content().find("lunaria"), std::string::npos);
  EXPECT_EQ(content().find("4501782936"), std::string::npos);
}

TEST_F(BuiltIn, LeavesOutItsOlderHalfBeforeItGrowsTooLarge) {
  std::string lines;
  while (lines.size() + 100 < BuiltInAnalytics::maxFileSize) {
    lines += std::to_string(lines.size()) + std::string(80, '.') + "\n";
  }
  writeFile(path(), lines);
  for (int i = 0; i < 3; ++i) {
    BuiltInAnalytics next;
    EXPECT_EQ(session(next), 0);
    ASSERT_LE(readFile(path()).size(), BuiltInAnalytics::maxFileSize);
  }
  const std::string after = content();
  EXPECT_LT(after.size(), lines.size() * 2 / 3);
  EXPECT_GT(after.size(), lines.size() / 3);
  const std::string first = after.substr(0, after.find('\n') + 1);
  EXPECT_NE(lines.find("\n" + first), std::string::npos) << "the first line is whole";
  EXPECT_EQ(after.substr(after.size() - line.size(), 6), "start=");
}

TEST_F(BuiltIn, AFileThatIsMuchTooLargeBecomesSmall) {
  writeFile(path(), std::string(300'000, 'x'));
  EXPECT_EQ(session(analytics), 0);
  EXPECT_EQ(content(), line);
}

TEST_F(BuiltIn, RefusesAFolderThatIsNotThere) {
  EXPECT_EQ(analytics.setFilePath(folder + "/none"), -10);
  EXPECT_EQ(analytics.start(), 0);
  EXPECT_LT(analytics.stop(), 0);
  EXPECT_EQ(analytics.takeErrors(), "");
}

TEST_F(BuiltIn, RefusesAFolderInWhichItCannotWrite) {
  xplFileSystemMini::createFolder(path());
  EXPECT_EQ(analytics.setFilePath(folder), -11);
}

TEST_F(BuiltIn, AFileThatIsLostMeanwhileIsAPendingError) {
  analytics.setFilePath(folder);
  analytics.start();
  std::remove(path().c_str());
  xplFileSystemMini::createFolder(path());
  EXPECT_LT(analytics.stop(), 0);
  EXPECT_THAT(analytics.takeErrors(), testing::HasSubstr(path()));
  EXPECT_EQ(analytics.takeErrors(), "");
}

}  // namespace
