// Tests the settings store: where its file lies, when it is read and saved, typed values, and what goes
// wrong.
#include <cstdio>
#include <filesystem>
#include <limits>

#include "harness/privateFolders.h"
#include "support/assertion.h"
#include "support/fileSystem.h"
#include "support/settings.h"

namespace {

class Settings : public PrivateFolders {
 protected:
  std::string folder() const {
    return xplFileSystemMini::joinPath(xplFileSystemMini::getFolder_UserData(), "Lunaria software");
  }
  std::string file() const { return xplFileSystemMini::joinPath(folder(), "Lunaria screensaver.ini"); }
  // A settings file that stands there before the store is opened.
  void given(const std::string& content) const {
    xplFileSystemMini::createFolder(folder());
    writeFile(file(), content);
  }
  std::string saved() const {
    std::string text = readFile(file());
    std::erase(text, '\r');
    return text;
  }
  std::string loadError() const { return "Error #1351: loading xplSettings from file:" + file(); }
  std::string setError() const { return "Error #1352c: saving xplSettings to file:" + file(); }
  std::string endError() const { return "Error #1352: saving xplSettings to file:" + file(); }
  int countSaveErrors() const {
    int count = 0;
    for (const auto& entry : logEntries()) {
      const std::string start = "Error saving file " + file() + " Error message:";
      count += entry.rfind(start, 0) == 0 && entry.size() > start.size() ? 1 : 0;
    }
    return count;
  }
};

}  // namespace

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

TEST_F(Settings, TypedValuesAreStoredAsTheirText) {
  xplSettings store(xplSettings::scopeUser);
  store.set("text", "literal");
  EXPECT_EQ(store.get("text"), "literal");
  store.set("true", true);
  EXPECT_EQ(store.get("true"), "yes");
  store.set("false", false);
  EXPECT_EQ(store.get("false"), "no");
  store.set("int", -2147483647 - 1);
  EXPECT_EQ(store.get("int"), "-2147483648");
  store.set("big", std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(store.get("big"), "9223372036854775807");
  store.set("double", 1234567.0);
  EXPECT_EQ(store.get("double"), "1.23457e+06");
  store.set("double", 0.1);
  EXPECT_EQ(store.get("double"), "0.1");
  store.set("double", -1234.5);
  EXPECT_EQ(store.get("double"), "-1234.5");
}

TEST_F(Settings, BooleanWordsAreReadExactly) {
  xplSettings store(xplSettings::scopeUser);
  for (const char* word : {"yes", "true", "1", "on"}) {
    store.set("key", word);
    EXPECT_TRUE(store.getBool("key", false)) << word;
  }
  for (const char* word : {"no", "false", "0", "off"}) {
    store.set("key", word);
    EXPECT_FALSE(store.getBool("key", true)) << word;
  }
  for (const char* word : {"Yes", "YES", "True", "On", "No", "False", "Off", " yes", "yes ", "2", "", "y"}) {
    store.set("key", word);
    EXPECT_TRUE(store.getBool("key", true)) << word;
    EXPECT_FALSE(store.getBool("key", false)) << word;
  }
  EXPECT_TRUE(store.getBool("absent", true));
  EXPECT_FALSE(store.getBool("absent", false));
}

TEST_F(Settings, NumbersAreReadFromWholeTextsInRange) {
  xplSettings store(xplSettings::scopeUser);
  const auto readInt = [&store](const char* text) {
    store.set("key", text);
    return store.getInt("key", 77);
  };
  EXPECT_EQ(readInt("0"), 0);
  EXPECT_EQ(readInt("-5"), -5);
  EXPECT_EQ(readInt("2147483647"), 2147483647);
  EXPECT_EQ(readInt("-2147483648"), -2147483647 - 1);
  for (const char* text : {"2147483648", "-2147483649", "99999999999999999999", "", " 1", "1 ", "+1", "1.0",
                           "1e3", "0x10", "abc", "1a", "-", "--1"}) {
    EXPECT_EQ(readInt(text), 77) << text;
  }
  EXPECT_EQ(store.getInt("absent", 77), 77);
}

TEST_F(Settings, LongNumbersAreReadFromWholeTextsInRange) {
  xplSettings store(xplSettings::scopeUser);
  const auto readInt64 = [&store](const char* text) {
    store.set("key", text);
    return store.getInt64("key", 77);
  };
  EXPECT_EQ(readInt64("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(readInt64("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
  for (const char* text : {"9223372036854775808", "", "1 ", "x"}) {
    EXPECT_EQ(readInt64(text), 77) << text;
  }
  EXPECT_EQ(store.getInt64("absent", 77), 77);
}

TEST_F(Settings, WithoutSavingOnEveryChangeTheDestructorSavesOnce) {
  {
    xplSettings store(xplSettings::scopeUser);
    store.saveOnEveryChange = false;
    store.set("a", "1");
    EXPECT_EQ(store.get("a"), "1");
    EXPECT_FALSE(xplFileSystemMini::fileExists(file()));
  }
  EXPECT_EQ(saved(), "a=1\n");
}

TEST_F(Settings, WithSavingOnEveryChangeTheDestructorSavesNothing) {
  {
    xplSettings store(xplSettings::scopeUser);
    store.set("a", "1");
    ASSERT_EQ(std::remove(file().c_str()), 0);
  }
  EXPECT_FALSE(xplFileSystemMini::fileExists(file()));
}

TEST_F(Settings, BatchSavesOnceAtItsEnd) {
  xplSettings store(xplSettings::scopeUser);
  {
    const xplSettings::Batch outer(store);
    {
      const xplSettings::Batch inner(store);
      store.set("a", "1");
    }
    EXPECT_FALSE(xplFileSystemMini::fileExists(file()));
    store.set("b", "2");
  }
  EXPECT_EQ(saved(), "a=1\nb=2\n");
  EXPECT_TRUE(store.saveOnEveryChange);
}

TEST_F(Settings, BatchLeavesTheSaveToAStoreThatSavesAtItsEnd) {
  xplSettings store(xplSettings::scopeUser);
  store.saveOnEveryChange = false;
  {
    const xplSettings::Batch batch(store);
    store.set("a", "1");
  }
  EXPECT_FALSE(store.saveOnEveryChange);
  EXPECT_FALSE(xplFileSystemMini::fileExists(file()));
}

TEST_F(Settings, FailedSaveOfABatchIsReportedOnce) {
  xplSettings store(xplSettings::scopeUser);
  ASSERT_TRUE(xplFileSystemMini::createFolder(file()));
  {
    const xplSettings::Batch batch(store);
    store.set("a", "1");
    store.set("b", "2");
  }
  EXPECT_EQ(countSaveErrors(), 1);
  EXPECT_EQ(countEntries(setError(), "ERROR"), 1);
}

TEST_F(Settings, FailedSaveKeepsTheValuesInMemory) {
  ASSERT_TRUE(xplFileSystemMini::createFolder(folder()));
  ASSERT_TRUE(xplFileSystemMini::createFolder(file()));  // a folder in the file's place
  xplSettings store(xplSettings::scopeUser);
  EXPECT_TRUE(logError().isEmpty());  // it is no file, so there is nothing to load
  store.set("a", "1");
  EXPECT_EQ(store.get("a"), "1");
  EXPECT_EQ(countSaveErrors(), 1);
  EXPECT_EQ(countEntries(setError(), "ERROR"), 1);
  EXPECT_TRUE(xplFileSystemMini::folderExists(file()));
  EXPECT_EQ(filesIn(folder()), std::vector<std::string>{"Lunaria screensaver.ini"});
}

TEST_F(Settings, FailedSaveAtTheEndHasItsOwnEntry) {
  {
    xplSettings store(xplSettings::scopeUser);
    store.saveOnEveryChange = false;
    ASSERT_TRUE(xplFileSystemMini::createFolder(file()));
    store.set("a", "1");
  }
  EXPECT_EQ(countSaveErrors(), 1);
  EXPECT_EQ(countEntries(endError(), "ERROR"), 1);
  EXPECT_EQ(countEntries(setError()), 0);
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

TEST_F(Settings, FileThatWasRemovedMeanwhileIsMadeAgain) {
  given("a=1\n");
  xplSettings store(xplSettings::scopeUser);
  ASSERT_EQ(std::remove(file().c_str()), 0);
  store.set("b", "2");
  EXPECT_EQ(saved(), "a=1\nb=2\n");
}

TEST_F(Settings, WhatAnotherProgramWroteMeanwhileIsKeptAndTakenOver) {
  xplSettings ours(xplSettings::scopeUser);
  ours.set("mine", "old");
  xplSettings theirs(xplSettings::scopeUser);
  theirs.set("theirs", "new");
  theirs.set("mine", "theirs");
  ours.set("third", "3");
  EXPECT_EQ(ours.get("theirs"), "new");
  EXPECT_EQ(ours.get("mine"), "theirs");
  const xplSettings file(xplSettings::scopeUser);
  EXPECT_EQ(file.get("theirs"), "new");
  EXPECT_EQ(file.get("mine"), "theirs");
  EXPECT_EQ(file.get("third"), "3");
}

TEST_F(Settings, WhatCouldNotBeSavedComesWithTheNextSave) {
  xplSettings store(xplSettings::scopeUser);
  std::filesystem::create_directories(store.filename() + "/in the way");
  store.set("a", "1");
  EXPECT_NE(store.saveError(), "");
  std::filesystem::remove_all(store.filename());
  writeFile(store.filename(), "a=0\nb=2\n");
  store.set("c", "3");
  EXPECT_EQ(store.saveError(), "");
  const xplSettings file(xplSettings::scopeUser);
  EXPECT_EQ(file.get("a"), "1");
  EXPECT_EQ(file.get("b"), "2");
  EXPECT_EQ(file.get("c"), "3");
}

TEST_F(Settings, ReloadingTakesOverWhatAnotherProgramWrote) {
  given("a=1\ngone=1\n");
  xplSettings ours(xplSettings::scopeUser);
  given("a=2\nnew=3\n");
  ours.reload();
  EXPECT_EQ(ours.get("a"), "2");
  EXPECT_EQ(ours.get("new"), "3");
  EXPECT_FALSE(ours.get("gone").has_value());
  EXPECT_EQ(saved(), "a=2\nnew=3\n");
}

TEST_F(Settings, ReloadingKeepsWhatIsNotSavedYet) {
  given("a=1\nb=1\n");
  xplSettings ours(xplSettings::scopeUser);
  {
    const xplSettings::Batch batch(ours);
    ours.set("a", "mine");
    given("a=2\nb=2\n");
    ours.reload();
    EXPECT_EQ(ours.get("a"), "mine");
    EXPECT_EQ(ours.get("b"), "2");
  }
  EXPECT_EQ(saved(), "a=mine\nb=2\n");
}

TEST_F(Settings, ReloadingAFileThatIsGoneKeepsTheValues) {
  given("a=1\n");
  xplSettings store(xplSettings::scopeUser);
  ASSERT_EQ(std::remove(file().c_str()), 0);
  store.reload();
  EXPECT_EQ(store.get("a"), "1");
  EXPECT_TRUE(logError().isEmpty());
}

TEST_F(Settings, AllChangesAreSavedTogether) {
  xplSettings store(xplSettings::scopeUser);
  EXPECT_TRUE(store.changeAllOrNothing([&] {
    store.set("a", "1");
    const xplSettings::Batch batch(store);
    store.set("b", "2");
    EXPECT_EQ(readFile(store.filename()), "");
  }));
  const xplSettings file(xplSettings::scopeUser);
  EXPECT_EQ(file.get("a"), "1");
  EXPECT_EQ(file.get("b"), "2");
}

TEST_F(Settings, NoneOfTheChangesStaysWhereTheyCannotBeSaved) {
  xplSettings store(xplSettings::scopeUser);
  store.set("a", "1");
  std::filesystem::remove(store.filename());
  std::filesystem::create_directories(store.filename() + "/in the way");
  EXPECT_FALSE(store.changeAllOrNothing([&] {
    store.set("a", "2");
    store.set("b", "2");
  }));
  EXPECT_EQ(store.get("a"), "1");
  EXPECT_FALSE(store.get("b").has_value());
  EXPECT_NE(store.saveError(), "");
  std::filesystem::remove_all(store.filename());
  store.set("c", "3");
  EXPECT_EQ(xplSettings(xplSettings::scopeUser).get("a"), "1");
  EXPECT_FALSE(xplSettings(xplSettings::scopeUser).get("b").has_value());
}

TEST_F(Settings, InsideABatchTheChangesWaitForItsEnd) {
  xplSettings store(xplSettings::scopeUser);
  {
    const xplSettings::Batch batch(store);
    EXPECT_TRUE(store.changeAllOrNothing([&] { store.set("a", "1"); }));
    EXPECT_EQ(readFile(store.filename()), "");
  }
  EXPECT_EQ(xplSettings(xplSettings::scopeUser).get("a"), "1");
}

TEST_F(Settings, StoresOfTheProcessAreOpenedOnceAndClosedTogether) {
  xplUserSettings().set("a", "1");
  EXPECT_EQ(&xplUserSettings(), &xplUserSettings());
  EXPECT_NE(&xplUserSettings(), &xplApplicationSettings());
  EXPECT_EQ(xplUserSettings().filename(), file());
  EXPECT_NE(xplApplicationSettings().filename(), file());
  EXPECT_FALSE(xplApplicationSettings().get("a").has_value());
  xplCloseSettings();
  given("a=2\n");
  EXPECT_EQ(xplUserSettings().get("a"), "2");
  xplCloseSettings();
}
