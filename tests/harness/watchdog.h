// Ends a test program in which a test waits for ever, so that it fails instead of hanging.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

#include <gtest/gtest.h>

class Watchdog : public testing::EmptyTestEventListener {
 public:
  // longest: what one test may take, on the slowest machine.
  explicit Watchdog(std::chrono::seconds longest);
  ~Watchdog() override;
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

  void OnTestStart(const testing::TestInfo& test) override;
  void OnTestEnd(const testing::TestInfo& test) override;

 private:
  void setTest(const std::string& name);
  void watch();

  std::chrono::seconds m_longest;
  std::mutex m_mutex;
  std::condition_variable m_changed;
  std::string m_test;    // that runs; empty between two
  unsigned m_count = 0;  // of changes to m_test
  bool m_shallEnd = false;
  std::thread m_thread;
};
