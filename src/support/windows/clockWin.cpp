// Local and universal time on Windows.
#include <ctime>
#include <limits>

#include "support/clock.h"
#include "support/windows/shellHeaders.h"

namespace {

constexpr std::int64_t ticksPerSecond = 10'000'000;  // of a FILETIME, which counts from 1601
constexpr std::int64_t startOf1601 = -11644473600;
constexpr std::int64_t startOf2001 = 978307200;
constexpr std::int64_t startOf2401 = 13601088000;
// The calendar, weekdays included, repeats every 400 years.
constexpr std::int64_t yearsPerCycle = 400;
constexpr std::int64_t secondsPerCycle = std::int64_t{146097} * 86400;
static_assert(startOf2401 - startOf2001 == secondsPerCycle && startOf2001 - startOf1601 == secondsPerCycle);

// A moment whose year the system's calendar covers, and how many cycles it lies before the wanted one.
struct Folded {
  std::int64_t seconds;
  std::int64_t cycles;
};

Folded fold(std::int64_t seconds) {
  if (seconds >= startOf2401) {
    const std::int64_t cycles = (seconds - startOf2001) / secondsPerCycle;
    return {seconds - cycles * secondsPerCycle, cycles};
  }
  // A day later, so that the local time of the first moments does not lie before the calendar.
  constexpr std::int64_t first = startOf1601 + 86400;
  if (seconds < first) {
    const std::int64_t cycles = (seconds - first + 1) / secondsPerCycle - 1;  // rounds down
    return {seconds - cycles * secondsPerCycle, cycles};
  }
  return {seconds, 0};
}

bool toFileTime(const SYSTEMTIME& time, std::int64_t& ticks) {
  FILETIME fileTime{};
  if (SystemTimeToFileTime(&time, &fileTime) == FALSE) {
    return false;
  }
  ticks = static_cast<std::int64_t>((static_cast<std::uint64_t>(fileTime.dwHighDateTime) << 32) |
                                    fileTime.dwLowDateTime);
  return true;
}

bool toSystemTime(std::int64_t seconds, SYSTEMTIME& time) {
  const auto ticks = static_cast<std::uint64_t>((seconds - startOf1601) * ticksPerSecond);
  const FILETIME fileTime = {static_cast<DWORD>(ticks & 0xffffffffU), static_cast<DWORD>(ticks >> 32)};
  return FileTimeToSystemTime(&fileTime, &time) != FALSE;
}

// 1 where the local time is not the zone's standard one, else 0; below 0 where that cannot be told.
int daylightSaving(const SYSTEMTIME& universal, const SYSTEMTIME& local, const TIME_ZONE_INFORMATION& zone) {
  constexpr std::int64_t ticksPerMinute = 60 * ticksPerSecond;
  std::int64_t universalTicks = 0;
  std::int64_t localTicks = 0;
  if (!toFileTime(universal, universalTicks) || !toFileTime(local, localTicks)) {
    return -1;
  }
  const std::int64_t standard = -(std::int64_t{zone.Bias} + zone.StandardBias) * ticksPerMinute;
  return localTicks - universalTicks == standard ? 0 : 1;
}

int dayOfYear(const SYSTEMTIME& time) {
  constexpr int daysBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  const bool isLeap = (time.wYear % 4 == 0 && time.wYear % 100 != 0) || time.wYear % 400 == 0;
  return daysBefore[time.wMonth - 1] + time.wDay - 1 + (isLeap && time.wMonth > 2 ? 1 : 0);
}

// A folded calendar time with the years of its cycles given back; nothing for a year that does not fit.
std::optional<std::tm> brokenDown(const SYSTEMTIME& time, std::int64_t cycles) {
  const std::int64_t year = time.wYear + cycles * yearsPerCycle - 1900;
  if (year < std::numeric_limits<int>::min() || year > std::numeric_limits<int>::max()) {
    return std::nullopt;
  }
  std::tm result{};
  result.tm_year = static_cast<int>(year);
  result.tm_mon = time.wMonth - 1;
  result.tm_mday = time.wDay;
  result.tm_hour = time.wHour;
  result.tm_min = time.wMinute;
  result.tm_sec = time.wSecond;
  result.tm_wday = time.wDayOfWeek;
  result.tm_yday = dayOfYear(time);
  return result;
}

// How many cycles are taken off a year so that the system's calendar covers it.
std::int64_t cyclesTakenOff(std::int64_t year) {
  if (year > 1601 && year <= 2400) {
    return 0;
  }
  const std::int64_t years = year - 2001;
  return (years >= 0 ? years : years - yearsPerCycle + 1) / yearsPerCycle;
}

// The universal time of a local one; the flag is tm_isdst. False where the system cannot tell.
bool toUniversal(const SYSTEMTIME& local, int daylightFlag, std::int64_t& ticks) {
  TIME_ZONE_INFORMATION zone{};
  if (GetTimeZoneInformationForYear(local.wYear, nullptr, &zone) == FALSE) {
    return false;
  }
  if (daylightFlag < 0) {
    SYSTEMTIME universal{};
    return TzSpecificLocalTimeToSystemTime(&zone, &local, &universal) != FALSE &&
           toFileTime(universal, ticks);
  }
  if (!toFileTime(local, ticks)) {
    return false;
  }
  const LONG bias = zone.Bias + (daylightFlag > 0 ? zone.DaylightBias : zone.StandardBias);
  ticks += std::int64_t{bias} * 60 * ticksPerSecond;
  return true;
}

// Whether each field can be told to the system, which checks the day against its month itself.
bool isInRange(const std::tm& time) {
  return time.tm_mon >= 0 && time.tm_mon <= 11 && time.tm_mday >= 1 && time.tm_mday <= 31 &&
         time.tm_hour >= 0 && time.tm_hour <= 23 && time.tm_min >= 0 && time.tm_min <= 59 &&
         time.tm_sec >= 0 && time.tm_sec <= 59;
}

// Well beyond the years that fit into a result, and far enough from the ends for the arithmetic.
bool isTooFar(std::int64_t seconds) {
  constexpr std::int64_t farthest = std::int64_t{1} << 57;
  return seconds < -farthest || seconds > farthest;
}

}  // namespace

// The C library's own conversions know no moment before 1970 nor after 3000.
std::optional<std::tm> xplClock::localTime(std::int64_t seconds) {
  if (isTooFar(seconds)) {
    return std::nullopt;
  }
  const Folded folded = fold(seconds);
  SYSTEMTIME universal{};
  SYSTEMTIME local{};
  TIME_ZONE_INFORMATION zone{};
  if (!toSystemTime(folded.seconds, universal) ||
      GetTimeZoneInformationForYear(universal.wYear, nullptr, &zone) == FALSE ||
      SystemTimeToTzSpecificLocalTime(&zone, &universal, &local) == FALSE) {
    return std::nullopt;
  }
  auto result = brokenDown(local, folded.cycles);
  if (result) {
    result->tm_isdst = daylightSaving(universal, local, zone);
  }
  return result;
}

std::optional<std::tm> xplClock::universalTime(std::int64_t seconds) {
  if (isTooFar(seconds)) {
    return std::nullopt;
  }
  const Folded folded = fold(seconds);
  SYSTEMTIME universal{};
  return toSystemTime(folded.seconds, universal) ? brokenDown(universal, folded.cycles) : std::nullopt;
}

std::optional<std::int64_t> xplClock::momentOfLocalTime(const std::tm& local) {
  if (!isInRange(local)) {
    return std::nullopt;
  }
  const std::int64_t year = std::int64_t{local.tm_year} + 1900;
  const std::int64_t cycles = cyclesTakenOff(year);
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(year - cycles * yearsPerCycle);
  time.wMonth = static_cast<WORD>(local.tm_mon + 1);
  time.wDay = static_cast<WORD>(local.tm_mday);
  time.wHour = static_cast<WORD>(local.tm_hour);
  time.wMinute = static_cast<WORD>(local.tm_min);
  time.wSecond = static_cast<WORD>(local.tm_sec);
  std::int64_t ticks = 0;
  if (!toUniversal(time, local.tm_isdst, ticks)) {
    return std::nullopt;
  }
  return ticks / ticksPerSecond + startOf1601 + cycles * secondsPerCycle;
}
