// The one place where the program reads the time or waits; tests and the renderer set it.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <ctime>
#include <mutex>
#include <optional>

// A moment: whole seconds since 1 January 1970 UTC, and the microseconds into that second, in [0, 1000000).
struct xplInstant {
  std::int64_t seconds = 0;
  std::int64_t microseconds = 0;
};

// Ends a sleep early, from another thread. Once rung it ends every later sleep at once, too.
class xplWakeUp {
 public:
  void ring();
  // Returns when it is rung, after this many milliseconds at the latest.
  void wait(unsigned milliseconds);

 private:
  std::mutex m_mutex;
  std::condition_variable m_rung;
  bool m_isRung = false;
};

// Where the clock takes its time from. Implementations may be called from any thread.
class xplClockSource {
 public:
  virtual ~xplClockSource() = default;
  virtual xplInstant now() = 0;
  // Returns after the given time, in milliseconds, has passed on this clock.
  virtual void sleep(unsigned milliseconds) = 0;
  // The same, less where it is woken up. A clock whose sleeps take no real time need not listen.
  virtual void sleep(unsigned milliseconds, xplWakeUp& /*wakeUp*/) { sleep(milliseconds); }
};

// A clock that stands still until it is set or slept on. Sleeping moves it forward and returns at once.
class xplManualClock : public xplClockSource {
 public:
  explicit xplManualClock(xplInstant start) : m_now(start) {}
  xplInstant now() override;
  using xplClockSource::sleep;
  void sleep(unsigned milliseconds) override { advance(std::int64_t{milliseconds} * 1000); }
  void set(xplInstant instant);
  // Moves the clock by this many microseconds; a negative amount moves it back.
  void advance(std::int64_t microseconds);

 private:
  std::mutex m_mutex;  // a worker sleeps on the clock while the test reads it
  xplInstant m_now;
};

// The process's clock.
class xplClock {
 public:
  // Seconds since 1 January 1970 UTC.
  static std::int64_t now();
  static xplInstant preciseNow();
  static void sleep(unsigned milliseconds);
  static void sleep(unsigned milliseconds, xplWakeUp& wakeUp);

  // Local broken-down time of a moment; nothing where the platform cannot tell (a year that does not fit).
  static std::optional<std::tm> localTime(std::int64_t seconds);

  // Broken-down UTC of a moment (no daylight saving time); nothing as above.
  static std::optional<std::tm> universalTime(std::int64_t seconds);
  // The moment of a broken-down local time: its year, month, day, hour, minute and second, each in its usual
  // range. tm_isdst: 0 reads it as the zone's standard time, above 0 as its summer time, below 0 as the one
  // in force. A local time that a change of the clocks leaves out gives a moment within the change; of one
  // that comes twice, either. Nothing where the platform cannot tell.
  static std::optional<std::int64_t> momentOfLocalTime(const std::tm& local);

  // Replaces the source until the object goes; the source is borrowed and must outlive it. Uses nest.
  class Override {
   public:
    explicit Override(xplClockSource& source);
    ~Override();
    Override(const Override&) = delete;
    Override& operator=(const Override&) = delete;

   private:
    xplClockSource* m_previous;
  };
};
