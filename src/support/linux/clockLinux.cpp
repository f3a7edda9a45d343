// Local and universal time on Linux.
#include <ctime>
#include <limits>

#include "support/clock.h"

static_assert(std::numeric_limits<std::time_t>::digits == std::numeric_limits<std::int64_t>::digits);

std::optional<std::tm> xplClock::localTime(std::int64_t seconds) {
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

std::optional<std::tm> xplClock::universalTime(std::int64_t seconds) {
  const std::time_t time = seconds;
  std::tm result{};
  if (gmtime_r(&time, &result) == nullptr) {
    return std::nullopt;
  }
  return result;
}

std::optional<std::int64_t> xplClock::momentOfLocalTime(const std::tm& local) {
  tzset();
  std::tm time = local;
  // A weekday that is still wrong afterwards tells a failure from the last second of 1969.
  time.tm_wday = -1;
  const std::time_t moment = std::mktime(&time);
  if (moment == -1 && time.tm_wday < 0) {
    return std::nullopt;
  }
  return moment;
}
