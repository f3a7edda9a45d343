// Tests the settings store where something else writes to its file, or opens it, at the same time.
#include <cstdio>
#include <fstream>

#include "support/settingsFixture.h"

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

// Another program that reads the file, until someone waits for it.
class ReaderUntilWaitedFor : public xplManualClock {
 public:
  explicit ReaderUntilWaitedFor(const std::string& path)
      : xplManualClock({1463865300, 0}), m_file(path, std::ios::binary) {}
  using xplManualClock::sleep;
  void sleep(unsigned milliseconds) override {
    m_file.close();
    xplManualClock::sleep(milliseconds);
  }

 private:
  std::ifstream m_file;
};

// On Windows a file that is open cannot be replaced.
TEST_F(Settings, ASaveWaitsForAProgramThatReadsTheFile) {
  given("a=1\n");
  xplSettings store(xplSettings::scopeUser);
  ReaderUntilWaitedFor reader(file());
  const xplClock::Override readersClock(reader);
  store.set("b", "2");
  EXPECT_EQ(countSaveErrors(), 0);
  EXPECT_EQ(saved(), "a=1\nb=2\n");
}
