// The processor's time on Windows, where clock() counts the time on the wall.
#include <cstdint>

#include <windows.h>

#include "quotes/processorTime.h"

namespace {

// A file time counts steps of 100 ns.
double millisecondsOf(const FILETIME& time) {
  const std::uint64_t steps = (std::uint64_t{time.dwHighDateTime} << 32U) | time.dwLowDateTime;
  return static_cast<double>(steps) / 10000.0;
}

}  // namespace

double processorTimeMs() {
  FILETIME created{};
  FILETIME ended{};
  FILETIME kernel{};
  FILETIME user{};
  GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
  return millisecondsOf(kernel) + millisecondsOf(user);
}
