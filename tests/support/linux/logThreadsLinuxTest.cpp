// Tests that two threads append whole entries, which the kernel's appending writes promise. (So do those of
// Windows, but not those of Wine, where one write may cover another.)
#include <thread>

#include "harness/privateFolders.h"

using LogThreadsLinux = PrivateFolders;

namespace {

constexpr int entriesEach = 300;

void writeEntries(const char* name) {
  for (int i = 0; i < entriesEach; ++i) {
    const logBlockOfCode block(name, "start", "end");
    logInfo().addf("%s entry %i", name, i);
    logWarning().add(name);
  }
}

}  // namespace

TEST_F(LogThreadsLinux, NoEntryOfTwoThreadsIsLostOrTornApart) {
  std::thread worker([] { writeEntries("worker"); });
  writeEntries("main");
  worker.join();
  for (const char* name : {"worker", "main"}) {
    EXPECT_EQ(countEntries(std::string("start: ") + name, "Info"), entriesEach);
    EXPECT_EQ(countEntries(std::string("end: ") + name, "Info"), entriesEach);
    EXPECT_EQ(countEntries(name, "Warning"), entriesEach);
    for (int i = 0; i < entriesEach; ++i) {
      ASSERT_EQ(countEntries(std::string(name) + " entry " + std::to_string(i), "Info"), 1);
    }
  }
  EXPECT_EQ(xplLogIndentation(), 0);
}

TEST_F(LogThreadsLinux, TwoThreadsStampASecondOnce) {
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
