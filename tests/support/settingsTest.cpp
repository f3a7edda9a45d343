// Tests the settings store's file: where it lies, how it is written, and what is read from one that is odd.
#include <string>

#include "support/assertion.h"
#include "support/settingsFixture.h"

TEST_F(Settings, FileOfTheUserLiesInTheCompanysFolder) {
  const xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(store.filename(), file());
  EXPECT_TRUE(xplFileSystemMini::folderExists(folder()));
  EXPECT_EQ(countEntries("xplSettings constructor: filename:" + file(), "Info"), 1);
  EXPECT_TRUE(logError().isEmpty());
}

TEST_F(Settings, FileOfAllUsersLiesInTheirFolder) {
  const xplSettings store(xplSettings::scopeAllUsers);
  EXPECT_EQ(store.filename(),
            xplFileSystemMini::joinPath(xplFileSystemMini::getFolder_CommonAppData(),
                                        "Lunaria software" + std::string(1, xplFileSystemMini::separator()) +
                                            "Lunaria screensaver.ini"));
}

TEST_F(Settings, EveryOtherScopeIsTheUsers) {
  for (const int scope : {0, 2, 3, 4, -1}) {
    const xplSettings store(scope);
    EXPECT_EQ(store.filename(), file()) << scope;
  }
}

TEST_F(Settings, MissingFileLoadsAsNothingAndTheFirstSetMakesIt) {
  xplSettings store(xplSettings::scopeUser);
  EXPECT_FALSE(store.get("key").has_value());
  EXPECT_FALSE(xplFileSystemMini::fileExists(file()));
  store.set("key", "value");
  EXPECT_EQ(saved(), "key=value\n");
}

TEST_F(Settings, SavedFileHasThePlatformsLineEnds) {
  xplSettings store(xplSettings::scopeUser);
  store.set("a", "1");
  const std::string end = xplFileSystemMini::lineEnd();
  EXPECT_EQ(readFile(file()), "a=1" + end);
}

TEST_F(Settings, ValueWithEverySpecialCharacterSurvives) {
  const std::string value = "a=b\tc\rd\ne\\ f==";
  {
    xplSettings store(xplSettings::scopeUser);
    store.set("key", value);
  }
  const xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(store.get("key"), value);
}

TEST_F(Settings, KeptBackslashAndLetterNComeBackAsBackslashAndLineFeed) {
  {
    xplSettings store(xplSettings::scopeUser);
    store.set("key", "C:\\night");
  }
  EXPECT_EQ(saved(), "key=C:\\\\night\n");
  const xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(store.get("key"), "C:\\\night");
}

TEST_F(Settings, LaterLineWinsAndTheNextSaveWritesOne) {
  given("a=1\na=2\n");
  xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(store.get("a"), "2");
  store.set("b", "3");
  EXPECT_EQ(saved(), "a=2\nb=3\n");
}

TEST_F(Settings, JunkLineJoinsTheNextKey) {
  given("junk\nk=v\n");
  const xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(store.get("junk\nk"), "v");
  EXPECT_FALSE(store.get("k").has_value());
}

TEST_F(Settings, SavedFileIsInByteOrder) {
  xplSettings store(xplSettings::scopeUser);
  store.set("b", "2");
  store.set("a", "1");
  store.set("B", "3");
  EXPECT_EQ(saved(), "B=3\na=1\nb=2\n");
}

TEST_F(Settings, FilesOfBothPlatformsLoadAlike) {
  for (const std::string end : {"\n", "\r\n"}) {
    given("a=1" + end + "b=two words" + end);
    const xplSettings store(xplSettings::scopeUser);
    EXPECT_EQ(store.get("a"), "1");
    EXPECT_EQ(store.get("b"), "two words");
  }
}

TEST_F(Settings, LoadingAndSavingLosesNothingThatWasReadable) {
  given("tail=1\nno equals sign");
  {
    xplSettings store(xplSettings::scopeUser);
    store.set("a", "1");
  }
  const xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(store.get("tail"), "1");
  EXPECT_EQ(store.get("no equals sign"), "");
  EXPECT_EQ(saved(), "a=1\nno equals sign=\ntail=1\n");
}

TEST_F(Settings, FileInTheFoldersPlaceIsReportedAndTheStoreIsUsable) {
  writeFile(folder(), "in the way");
  xplSettings store(xplSettings::scopeUser);
  EXPECT_EQ(countEntries("During xplSettings constructor could not create folder:" + folder(), "ERROR"), 1);
  store.set("a", "1");
  EXPECT_EQ(store.get("a"), "1");
  EXPECT_EQ(countEntries(setError(), "ERROR"), 1);
  EXPECT_EQ(readFile(folder()), "in the way");
}

TEST_F(Settings, MissingBaseFolderFailsTheAssertionInDebugBuilds) {
  // A root that cannot hold folders: it is a file.
  const std::string noFolder = xplFileSystemMini::joinPath(root(), "file");
  writeFile(noFolder, "");
  xplFileSystemMini::redirectFolders(noFolder);
  { const xplSettings store(xplSettings::scopeUser); }
  xplFileSystemMini::redirectFolders(root());
  const bool reported =
      logText().find(
          "xplFileSystemMini::folderExists(_settingsFilename.c_str()) && "
          "_T(\"#5381: settings folder does not exist\"), source xplSettings, line ") != std::string::npos;
  EXPECT_EQ(reported, xplAssertionsReport);
}

TEST_F(Settings, BinaryFileLoadsAndIsNotLost) {
  std::string content;
  for (int i = 0; i < 4096; ++i) {
    content += static_cast<char>(i * 7 % 256);
  }
  given(content);
  xplSettings store(xplSettings::scopeUser);
  store.set("key", "value");
  EXPECT_EQ(store.get("key"), "value");
  EXPECT_TRUE(logError().isEmpty());
  const xplSettings again(xplSettings::scopeUser);
  EXPECT_EQ(again.get("key"), "value");
}

TEST_F(Settings, LineOfTenMegabytesSurvivesASave) {
  const std::string value(10 << 20, 'x');
  given("big=" + value + "\nsmall=1\n");
  {
    xplSettings store(xplSettings::scopeUser);
    EXPECT_EQ(store.getInt("small", 0), 1);
    store.set("other", "2");
  }
  const xplSettings store(xplSettings::scopeUser);
  EXPECT_TRUE(store.get("big") == value);
  EXPECT_EQ(store.get("other"), "2");
}
