// Local time on Windows.
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

}  // namespace

// The C library's own conversion knows no moment before 1970 nor after 3000.
std::optional<std::tm> xplClock::localTime(std::int64_t seconds) {
  // Well beyond the years that fit into the result, and far enough from the ends for the arithmetic.
  constexpr std::int64_t farthest = std::int64_t{1} << 57;
  if (seconds < -farthest || seconds > farthest) {
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
  const std::int64_t year = local.wYear + folded.cycles * yearsPerCycle - 1900;
  if (year < std::numeric_limits<int>::min() || year > std::numeric_limits<int>::max()) {
    return std::nullopt;
  }
  std::tm result{};
  result.tm_year = static_cast<int>(year);
  result.tm_mon = local.wMonth - 1;
  result.tm_mday = local.wDay;
  result.tm_hour = local.wHour;
  result.tm_min = local.wMinute;
  result.tm_sec = local.wSecond;
  result.tm_wday = local.wDayOfWeek;
  result.tm_yday = dayOfYear(local);
  result.tm_isdst = daylightSaving(universal, local, zone);
  return result;
}
