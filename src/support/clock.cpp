// Implements the clock: the system's time, a clock that is set, and the switch between the two.
#include "support/clock.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace {

constexpr std::int64_t microsecondsPerSecond = 1000000;

class SystemClock : public xplClockSource {
 public:
  xplInstant now() override {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(sinceEpoch);
    const auto rest = std::chrono::floor<std::chrono::microseconds>(sinceEpoch - seconds);
    return {seconds.count(), rest.count()};
  }
  void sleep(unsigned milliseconds) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  }
  void sleep(unsigned milliseconds, xplWakeUp& wakeUp) override { wakeUp.wait(milliseconds); }
};

// The source that is in force. Other threads may read the clock while the main one overrides it.
std::atomic<xplClockSource*>& currentSource() {
  static SystemClock systemClock;
  static std::atomic<xplClockSource*> source{&systemClock};
  return source;
}

xplClockSource& source() {
  return *currentSource().load();
}

}  // namespace

void xplWakeUp::ring() {
  const std::lock_guard lock(m_mutex);
  m_isRung = true;
  m_rung.notify_all();
}

void xplWakeUp::wait(unsigned milliseconds) {
  std::unique_lock lock(m_mutex);
  m_rung.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return m_isRung; });
}

xplInstant xplManualClock::now() {
  const std::lock_guard lock(m_mutex);
  return m_now;
}

void xplManualClock::set(xplInstant instant) {
  const std::lock_guard lock(m_mutex);
  m_now = instant;
}

void xplManualClock::advance(std::int64_t microseconds) {
  const std::lock_guard lock(m_mutex);
  // Split first, so that no sum leaves 64 bits.
  m_now.seconds += microseconds / microsecondsPerSecond;
  m_now.microseconds += microseconds % microsecondsPerSecond;
  if (m_now.microseconds >= microsecondsPerSecond) {
    m_now.microseconds -= microsecondsPerSecond;
    ++m_now.seconds;
  } else if (m_now.microseconds < 0) {
    m_now.microseconds += microsecondsPerSecond;
    --m_now.seconds;
  }
}

std::int64_t xplClock::now() {
  return source().now().seconds;
}

xplInstant xplClock::preciseNow() {
  return source().now();
}

void xplClock::sleep(unsigned milliseconds) {
  source().sleep(milliseconds);
}

void xplClock::sleep(unsigned milliseconds, xplWakeUp& wakeUp) {
  source().sleep(milliseconds, wakeUp);
}

xplClock::Override::Override(xplClockSource& source) : m_previous(currentSource().exchange(&source)) {}

xplClock::Override::~Override() {
  currentSource().store(m_previous);
}
