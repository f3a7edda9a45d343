// Tests the log from two threads at once, as the main thread and the telemetry thread use it.
#include <atomic>
#include <thread>

#include "harness/privateFolders.h"

using LogThreads = PrivateFolders;

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
