// A stopwatch on the program's clock.
#pragma once

#include "support/clock.h"

// Runs from its construction on.
class xplTimeCounter {
 public:
  void restart() { m_start = xplClock::preciseNow(); }

  // Seconds since the start: 0 where the clock stood still, negative where it was set back.
  double seconds() const {
    const xplInstant now = xplClock::preciseNow();
    return static_cast<double>(now.seconds - m_start.seconds) +
           static_cast<double>(now.microseconds - m_start.microseconds) / 1e6;
  }

 private:
  xplInstant m_start = xplClock::preciseNow();
};
