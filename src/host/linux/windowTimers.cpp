// Implements the timers on descriptors of the kernel's.
#include "host/linux/windowTimers.h"

#include <algorithm>
#include <utility>

#include <sys/timerfd.h>

std::uintptr_t WindowTimers::start(std::uintptr_t id, unsigned milliseconds) {
  stop(id);
  FileDescriptor timer(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC));
  const unsigned period = std::max(milliseconds, 1U);
  const timespec step{static_cast<time_t>(period / 1000), static_cast<long>(period % 1000) * 1000000};
  const itimerspec times{step, step};
  if (id == 0 || !timer.isOpen() || ::timerfd_settime(timer.get(), 0, &times, nullptr) != 0) {
    return 0;
  }
  m_timers.push_back({id, std::move(timer)});
  return id;
}

void WindowTimers::stop(std::uintptr_t id) {
  std::erase_if(m_timers, [id](const Timer& timer) { return timer.id == id; });
}

std::uint64_t WindowTimers::Timer::periodsPassed() const {
  std::uint64_t periods = 0;
  const bool isRead =
      ::read(descriptor.get(), &periods, sizeof periods) == static_cast<ssize_t>(sizeof periods);
  return isRead ? periods : 0;
}

WindowTimers& windowTimers() {
  static WindowTimers timers;
  return timers;
}
