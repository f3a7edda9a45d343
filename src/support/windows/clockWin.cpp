// Local time on Windows.
#include <ctime>

#include "support/clock.h"
#include "support/windows/shellHeaders.h"

namespace {

// Moments that the system's calendar covers: the years 1601 to 30827.
constexpr std::int64_t secondsFrom1601To1970 = 11644473600;
constexpr std::int64_t ticksPerSecond = 10'000'000;
constexpr std::int64_t lastSecond = 910692730085;

int dayOfYear(const SYSTEMTIME& time) {
  constexpr int daysBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  const bool isLeap = (time.wYear % 4 == 0 && time.wYear % 100 != 0) || time.wYear % 400 == 0;
  return daysBefore[time.wMonth - 1] + time.wDay - 1 + (isLeap && time.wMonth > 2 ? 1 : 0);
}

}  // namespace

// The C library's own conversion knows no moment before 1970.
std::optional<std::tm> xplClock::localTime(std::int64_t seconds) {
  if (seconds < -secondsFrom1601To1970 || seconds > lastSecond) {
    return std::nullopt;
  }
  ULARGE_INTEGER ticks;
  ticks.QuadPart = static_cast<ULONGLONG>((seconds + secondsFrom1601To1970) * ticksPerSecond);
  const FILETIME fileTime = {ticks.LowPart, ticks.HighPart};
  SYSTEMTIME universal{};
  SYSTEMTIME local{};
  if (FileTimeToSystemTime(&fileTime, &universal) == FALSE ||
      SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) == FALSE) {
    return std::nullopt;
  }
  std::tm result{};
  result.tm_year = local.wYear - 1900;
  result.tm_mon = local.wMonth - 1;
  result.tm_mday = local.wDay;
  result.tm_hour = local.wHour;
  result.tm_min = local.wMinute;
  result.tm_sec = local.wSecond;
  result.tm_wday = local.wDayOfWeek;
  result.tm_yday = dayOfYear(local);
  result.tm_isdst = -1;  // not told
  return result;
}
