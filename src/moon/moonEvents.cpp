// Finds the neighbours of a moment among full or new moons.
#include "moon/moonEvents.h"

#include <algorithm>
#include <ctime>
#include <optional>

#include "moon/moonTimeCorrection.h"
#include "support/clock.h"

namespace {

// Nothing where the platform knows no such local time.
std::optional<std::int64_t> momentOf(const MoonTableEntry& entry) {
  std::tm time{};
  time.tm_min = entry.minute;
  time.tm_hour = entry.hour;
  time.tm_mday = entry.day;
  time.tm_mon = entry.month - 1;
  time.tm_year = entry.year - 1900;
  time.tm_isdst = -1;  // the library decides
  // The entry is in UTC, and is read here as local time; the correction makes up for it.
  const auto misread = xplClock::momentOfLocalTime(time);
  return misread ? std::optional(*misread + MoonTimeCorrection::seconds()) : std::nullopt;
}

std::int32_t wrappedProduct32(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

// Deliberate: the remainder is used here where one expects the quotient, so that the number of months is that
// of seconds into the month, and the product leaves 32 bits. The dates that the label shows beyond the
// tables' years are what this gives, 1970 among them where the event does not lie beyond the moment; the
// phase does not depend on it. Do not "correct" the division.
std::int32_t stepBeyondTable(std::int32_t distance) {
  const std::int32_t count = distance % synodicMonth + 1;
  return wrappedProduct32(count, synodicMonth);
}

}  // namespace

MoonEvents::MoonEvents(std::span<const MoonTableEntry> table) {
  m_events.reserve(table.size() + 1);
  for (const MoonTableEntry& entry : table) {
    if (const auto moment = momentOf(entry)) {
      m_events.push_back(*moment);
    }
  }
}

std::int64_t MoonEvents::previous(std::int64_t time) {
  if (!m_events.empty() && time < m_events.front()) {
    const std::int64_t first = m_events.front();
    m_events.insert(m_events.begin(), first - stepBeyondTable(wrappedDifference32(first, time)));
  }
  const auto found =
      std::find_if(m_events.rbegin(), m_events.rend(), [time](std::int64_t event) { return event <= time; });
  return found == m_events.rend() ? 0 : *found;
}

std::int64_t MoonEvents::next(std::int64_t time) {
  if (!m_events.empty() && time > m_events.back()) {
    const std::int64_t last = m_events.back();
    m_events.push_back(last + stepBeyondTable(wrappedDifference32(time, last)));
  }
  const auto found =
      std::find_if(m_events.begin(), m_events.end(), [time](std::int64_t event) { return event > time; });
  return found == m_events.end() ? 0 : *found;
}
