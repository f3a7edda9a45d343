// Tests that two threads append whole entries, which the kernel's appending writes promise. (So do those of
// Windows, but not those of Wine, where one write may cover another.)
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "harness/privateFolders.h"

using LogThreadsLinux = PrivateFolders;

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

TEST_F(LogThreadsLinux, NoEntryOfTwoThreadsIsLostOrTornApart) {
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
