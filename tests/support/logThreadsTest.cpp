// Tests the log from two threads at once, as the main thread and the telemetry thread use it.
#include <atomic>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "harness/privateFolders.h"

using LogThreads = PrivateFolders;

namespace {

constexpr std::size_t entriesEach = 300;

void writeEntries(const char* name) {
  for (std::size_t i = 0; i < entriesEach; ++i) {
    const logBlockOfCode block(name, "start", "end");
    logInfo().addf("%s entry %zu", name, i);
    logWarning().add(name);
  }
}

}  // namespace

TEST_F(LogThreads, EmptinessMayBeAskedWhileAnotherThreadWrites) {
  std::atomic<bool> written{false};
  std::thread worker([&written] {
    logError().add("bad");
    written = true;
  });
  while (!written) {
    logError().isEmpty();
    std::this_thread::yield();
  }
  worker.join();
  EXPECT_FALSE(logError().isEmpty());
}

TEST_F(LogThreads, WritersAndBlocksMayBeUsedFromTwoThreads) {
  const auto writeMany = [] {
    for (int i = 0; i < 200; ++i) {
      const logBlockOfCode block("block", "start", "end");
      logWarning().addf("entry %i", i);
    }
  };
  std::thread worker(writeMany);
  writeMany();
  worker.join();
  EXPECT_EQ(xplLogIndentation(), 0);
  EXPECT_FALSE(logWarning().isEmpty());
  logInfo().add("after both");
  EXPECT_EQ(countEntries("after both", "Info"), 1);
  EXPECT_EQ(countEntries("xplLog starting", "Info"), 1);
}

TEST_F(LogThreads, NoEntryOfTwoThreadsIsLostOrTornApart) {
  std::thread worker([] { writeEntries("worker"); });
  writeEntries("main");
  worker.join();
  const std::vector<std::string> entries = logEntries();
  const std::multiset<std::string> written(entries.begin(), entries.end());
  for (const std::string name : {"worker", "main"}) {
    EXPECT_EQ(written.count("start: " + name), entriesEach);
    EXPECT_EQ(written.count("end: " + name), entriesEach);
    EXPECT_EQ(written.count(name), entriesEach);
    for (std::size_t i = 0; i < entriesEach; ++i) {
      EXPECT_EQ(written.count(name + " entry " + std::to_string(i)), 1U);
    }
  }
  EXPECT_EQ(xplLogIndentation(), 0);
}

TEST_F(LogThreads, TwoThreadsStampASecondOnce) {
  clock.advance(1000000);
  const std::size_t before = logText().size();
  std::thread worker([] { logInfo().add("worker"); });
  logInfo().add("main");
  worker.join();
  const std::string added = logText().substr(before);
  const auto first = added.find("     \t");
  ASSERT_NE(first, std::string::npos);
  EXPECT_EQ(added.find("     \t", first + 1), std::string::npos);
}
