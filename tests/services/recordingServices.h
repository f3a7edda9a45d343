// Services that only note what is asked of them, and a clock that runs when a test lets it.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "services/analytics.h"
#include "services/keepAwake.h"
#include "services/soundOutput.h"
#include "support/clock.h"

using Calls = std::vector<std::string>;

// Notes its calls in a list that the test owns.
class RecordingSound : public xpliSoundOutput {
 public:
  explicit RecordingSound(Calls& calls) : m_calls(calls) {}
  void stop() override { m_calls.emplace_back("stop"); }
  void play(int resourceId, bool loop) override {
    m_calls.push_back((loop ? "loop " : "play ") + std::to_string(resourceId));
  }

 private:
  Calls& m_calls;
};

// What a recorded platform answers, and what it was asked.
struct KeepAwakeRecord {
  Calls calls;
  bool agrees = true;
  bool refusesLater = false;
};

class RecordingKeepAwake : public xpliKeepAwake {
 public:
  explicit RecordingKeepAwake(KeepAwakeRecord& record) : m_record(record) {}
  bool request() override {
    m_record.calls.emplace_back("request");
    return m_record.agrees;
  }
  bool wasRefused() override { return std::exchange(m_record.refusesLater, false); }
  void release() override { m_record.calls.emplace_back("release"); }

 private:
  KeepAwakeRecord& m_record;
};

// What happened to the analytics libraries of a test. Written by the thread of the report, read by the test.
class AnalyticsRecord {
 public:
  void add(const std::string& call) {
    const std::lock_guard lock(m_mutex);
    m_calls.push_back(call);
    m_changed.notify_all();
  }
  Calls calls() const {
    const std::lock_guard lock(m_mutex);
    return m_calls;
  }
  // Returns when the call has been made.
  void waitFor(const std::string& call) {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] {
      for (const auto& made : m_calls) {
        if (made == call) {
          return true;
        }
      }
      return false;
    });
  }

  // Set before the thread starts.
  int pathResult = 0;
  std::string errorsOfStart;
  std::string errorsOfStop;
  std::function<void()> duringStart;

 private:
  mutable std::mutex m_mutex;
  std::condition_variable m_changed;
  Calls m_calls;
};

class RecordingAnalytics : public xpliAnalytics {
 public:
  explicit RecordingAnalytics(AnalyticsRecord& record) : m_record(record) {}
  int setFilePath(const std::string& folder) override {
    m_record.add("setFilePath " + folder);
    return m_record.pathResult;
  }
  int createConfig(const std::string& address, const std::string& productId,
                   const std::string& productVersion, const std::string& buildStamp,
                   bool collectsMore) override {
    m_record.add("createConfig " + address + " " + productId + " " + productVersion + " " + buildStamp +
                 (collectsMore ? " true" : " false"));
    return 0;
  }
  int start() override {
    m_record.add("start");
    m_errors = m_record.errorsOfStart;
    if (m_record.duringStart) {
      m_record.duringStart();
    }
    return 0;
  }
  int stop() override {
    m_record.add("stop");
    m_errors = m_record.errorsOfStop;
    return 0;
  }
  std::string takeErrors() override {
    m_record.add("takeErrors");
    return std::exchange(m_errors, std::string());
  }

 private:
  AnalyticsRecord& m_record;
  std::string m_errors;
};

// A clock whose sleepers wait until the test gives them time. Every sleep moves its hands.
class GatedClock : public xplClockSource {
 public:
  explicit GatedClock(xplInstant start) : m_hands(start) {}
  xplInstant now() override { return m_hands.now(); }
  using xplClockSource::sleep;
  void sleep(unsigned milliseconds) override {
    std::unique_lock lock(m_mutex);
    m_isAsleep = true;
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return m_isOpen || m_given >= milliseconds; });
    m_isAsleep = false;
    m_given -= m_isOpen ? 0 : milliseconds;
    m_hands.sleep(milliseconds);
    m_changed.notify_all();
  }
  // Gives this much time, and returns when it is used up and the sleeper lies down again.
  void give(std::int64_t milliseconds) {
    std::unique_lock lock(m_mutex);
    m_given += milliseconds;
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return m_given == 0 && m_isAsleep; });
  }
  // From now on nobody waits.
  void open() {
    const std::lock_guard lock(m_mutex);
    m_isOpen = true;
    m_changed.notify_all();
  }

 private:
  std::mutex m_mutex;
  std::condition_variable m_changed;
  xplManualClock m_hands;
  std::int64_t m_given = 0;  // milliseconds that sleepers may still sleep
  bool m_isAsleep = false;
  bool m_isOpen = false;
};
