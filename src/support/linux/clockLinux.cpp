// Local time on Linux.
#include <ctime>
#include <limits>

#include "support/clock.h"

std::optional<std::tm> xplClock::localTime(std::int64_t seconds) {
  static_assert(std::numeric_limits<std::time_t>::digits == std::numeric_limits<std::int64_t>::digits);
  // A saver runs for weeks: a zone that the user changes meanwhile shall show. localtime_r alone need not
  // look.
  tzset();
  const std::time_t time = seconds;
  std::tm result{};
  if (localtime_r(&time, &result) == nullptr) {
    return std::nullopt;
  }
  return result;
}
