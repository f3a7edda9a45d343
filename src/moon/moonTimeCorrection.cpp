// Computes the correction once.
#include "moon/moonTimeCorrection.h"

#include "graphics/wrapping.h"
#include "support/clock.h"

namespace {

// What reading the present UTC time as local time leads astray by.
std::int64_t measuredNow() {
  const std::int64_t now = xplClock::now();
  const auto universal = xplClock::universalTime(now);
  const auto misread = universal ? xplClock::momentOfLocalTime(*universal) : std::nullopt;
  return misread ? wrappingDifference(now, *misread) : 0;
}

}  // namespace

// Deliberate: never computed again, even if the zone or its summer time changes while the program runs: the
// moon and its label, made at different moments, must agree. Universal time knows no summer time, so that
// this is the zone's standard difference; an instant in the zone's summer comes out an hour early, and the
// label shows it so. Do not compute it for each instant.
std::int64_t MoonTimeCorrection::seconds() {
  if (!m_kept) {
    m_kept = measuredNow();
  }
  return *m_kept;
}
