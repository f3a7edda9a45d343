// The timers of the saver's window, for the pump to wait for.
#pragma once

#include <cstdint>
#include <vector>

#include "host/linux/fileDescriptor.h"

class WindowTimers {
 public:
  // Starts a timer that ticks every so many milliseconds (at least 1); one of this id starts anew. Returns
  // the id; 0 where the system gives no timer, and for the id 0.
  std::uintptr_t start(std::uintptr_t id, unsigned milliseconds);
  void stop(std::uintptr_t id);

  struct Timer {
    std::uintptr_t id;
    FileDescriptor descriptor;
    // How many periods have passed since the last look.
    std::uint64_t periodsPassed() const;
  };
  const std::vector<Timer>& all() const { return m_timers; }

 private:
  std::vector<Timer> m_timers;
};

// The process's timers. They tick whether or not a pump waits for them.
WindowTimers& windowTimers();
