// Computes the moon's phase and its neighbours.
#include "moon/moonInfo.h"

#include <algorithm>

#include "graphics/wrapping.h"
#include "moon/moonEvents.h"
#include "support/clock.h"
#include "support/log.h"

namespace {

constexpr std::int64_t endOfNight = 21600;     // seconds after midnight: until then it is the night before
constexpr std::int64_t untilTomorrow = 64800;  // a day less the same

std::int64_t nearest(std::int64_t time, std::int64_t previous, std::int64_t next) {
  return wrappingDifference(time, previous) >= wrappingDifference(next, time) ? next : previous;
}

bool isSameLocalDay(std::int64_t first, std::int64_t second) {
  const auto a = xplClock::localTime(first);
  const auto b = xplClock::localTime(second);
  return a && b && a->tm_year == b->tm_year && a->tm_yday == b->tm_yday;
}

bool fallsOnNight(std::int64_t event, std::int64_t shiftOfNow) {
  return isSameLocalDay(wrappingDifference(event, endOfNight), wrappingSum(xplClock::now(), shiftOfNow));
}

}  // namespace

cMoonInfo::cMoonInfo(std::int64_t time) : m_time(time) {
  calcPhaseForTime();
}

void cMoonInfo::calcPhaseForTime() {
  const logFunctionLife block("cMoonInfo::calcPhaseForTime");
  MoonEvents fullMoons(fullMoonTable);
  m_previousFullMoon = fullMoons.previous(m_time);
  m_nextFullMoon = fullMoons.next(m_time);
  MoonEvents newMoons(newMoonTable);
  m_previousNewMoon = newMoons.previous(m_time);
  m_nextNewMoon = newMoons.next(m_time);

  const std::int64_t sinceFullMoon = wrappedDifference32(m_time, m_previousFullMoon) % synodicMonth;
  m_phase = static_cast<std::int32_t>(sinceFullMoon * 360 / synodicMonth);
  const int percent = (180 - std::min(m_phase, 360 - m_phase)) * 100 / 180;
  m_percentText = stringFormat("%i%%", percent);
}

std::int64_t cMoonInfo::nearestFullMoon() const {
  return nearest(m_time, m_previousFullMoon, m_nextFullMoon);
}

std::int64_t cMoonInfo::nearestNewMoon() const {
  return nearest(m_time, m_previousNewMoon, m_nextNewMoon);
}

bool cMoonInfo::isFullMoonTonight() const {
  return fallsOnNight(nearestFullMoon(), -endOfNight);
}

bool cMoonInfo::isFullMoonTomorrow() const {
  return fallsOnNight(nearestFullMoon(), untilTomorrow);
}

bool cMoonInfo::isNewMoonTonight() const {
  return fallsOnNight(nearestNewMoon(), -endOfNight);
}

bool cMoonInfo::isNewMoonTomorrow() const {
  return fallsOnNight(nearestNewMoon(), untilTomorrow);
}
