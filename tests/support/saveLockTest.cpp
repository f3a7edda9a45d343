// Tests the lock for saving: who gets it, who waits, and that savers lose nothing of each other's.
#include <future>
#include <memory>
#include <thread>

#include "support/saveLock.h"
#include "support/savers.h"

namespace {

// Another thread that holds the lock of a file until it is told to let go.
class Holder {
 public:
  explicit Holder(const std::string& path)
      : m_thread([this, path] {
          const xplSaveLock lock(path);
          m_holds.set_value(lock.isHeld());
          m_letGo.get_future().wait();
        }) {}
  ~Holder() {
    m_letGo.set_value();
    m_thread.join();
  }
  bool holds() { return m_holds.get_future().get(); }

 private:
  std::promise<bool> m_holds;
  std::promise<void> m_letGo;
  std::thread m_thread;  // the last, since it uses the others
};

class SaveLock : public Savers {
 protected:
  SaveLock() { given(""); }
  int countLate() const { return countEntriesWith("is not waited for:" + file()); }
};

TEST_F(SaveLock, IsHeldWhereNobodyElseHoldsIt) {
  for (int i = 0; i < 2; ++i) {
    const xplSaveLock lock(file());
    EXPECT_TRUE(lock.isHeld());
  }
  EXPECT_EQ(countLate(), 0);
}

TEST_F(SaveLock, WhoHoldsItForTooLongIsNotWaitedFor) {
  Holder other(file());
  ASSERT_TRUE(other.holds());
  const auto start = std::chrono::steady_clock::now();
  const xplSaveLock lock(file());
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(90));
  EXPECT_FALSE(lock.isHeld());
  EXPECT_EQ(countLate(), 1);
}

TEST_F(SaveLock, ASaveWithoutTheLockIsASaveAllTheSame) {
  xplSettings store(xplSettings::scopeUser);
  Holder other(file());
  ASSERT_TRUE(other.holds());
  store.set("a", 1);
  EXPECT_EQ(saved(), "a=1\n");
  EXPECT_EQ(countLate(), 1);
}

TEST_F(SaveLock, IsHadAgainWhenTheOtherLetsGo) {
  auto other = std::make_unique<Holder>(file());
  ASSERT_TRUE(other->holds());
  other.reset();
  const xplSaveLock lock(file());
  EXPECT_TRUE(lock.isHeld());
}

TEST_F(SaveLock, IsWaitedForUntilTheOtherLetsGo) {
  auto other = std::make_unique<Holder>(file());
  ASSERT_TRUE(other->holds());
  auto waiting = std::async(std::launch::async, [this] { return xplSaveLock(file()).isHeld(); });
  other.reset();
  EXPECT_TRUE(waiting.get());
}

TEST_F(SaveLock, AFileInAnotherFolderHasAnother) {
  Holder other(file());
  ASSERT_TRUE(other.holds());
  const xplSaveLock lock(xplFileSystemMini::joinPath(root(), "other.ini"));
  EXPECT_TRUE(lock.isHeld());
}

TEST_F(SaveLock, LeavesNothingBesideTheFile) {
  { const xplSaveLock lock(file()); }
  EXPECT_EQ(filesIn(folder()), std::vector<std::string>({"Lunaria screensaver.ini"}));
}

TEST_F(SaveLock, WithoutAFolderIsNotHeldAndNotWaitedFor) {
  const std::string nowhere = xplFileSystemMini::joinPath(root(), "none/file.ini");
  const xplSaveLock lock(nowhere);
  EXPECT_EQ(countEntriesWith("is not waited for"), 0);
}

TEST_F(SaveLock, TwoThreadsThatSaveAtOnceLoseNothing) {
  std::thread one([] { saveAllKeysOf("one"); });
  std::thread other([] { saveAllKeysOf("other"); });
  one.join();
  other.join();
  if (someSaverWasLate()) {
    GTEST_SKIP() << "the machine is too busy: a save took longer than it is waited for";
  }
  expectAllKeysOf("one", "other");
}

}  // namespace
