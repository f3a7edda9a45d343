// The full moons or new moons around a moment: those of a table, continued by a step beyond its ends.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "moon/moonTables.h"

// The only period used, in seconds: 29 days 12 h 44 min 3 s.
inline constexpr std::int32_t synodicMonth = 2551443;

// a - b as a 32-bit signed number; it wraps.
constexpr std::int32_t wrappedDifference32(std::int64_t a, std::int64_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint64_t>(a) - static_cast<std::uint64_t>(b));
}

// Moments are seconds since 1 January 1970 UTC; 0 means that there is no such event.
class MoonEvents {
 public:
  // The table's instants, in its order.
  explicit MoonEvents(std::span<const MoonTableEntry> table);

  // The last event at or before the moment. Before the first entry the list grows by one at its front, and
  // next() looks at that one too.
  std::int64_t previous(std::int64_t time);
  // The first event strictly after the moment. After the last entry the list grows by one at its end.
  std::int64_t next(std::int64_t time);

 private:
  std::vector<std::int64_t> m_events;
};
