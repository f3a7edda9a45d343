// Tests when the settings store saves: on every change, at the end of a batch, all changes or none; and what
// a save that fails leaves behind.
#include <cstdio>
#include <filesystem>

#include "support/settingsFixture.h"

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
