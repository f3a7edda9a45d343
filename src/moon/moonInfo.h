// Where the moon stands in its monthly cycle at one moment.
#pragma once

#include <cstdint>
#include <string>

// Moments are seconds since 1 January 1970 UTC; 0 means that no such event was found. Within the tables'
// years the neighbours are exact to the minute (an hour early in the zone's summer time); beyond them the
// phase goes on by the mean month, and the neighbours are what MoonEvents gives.
class cMoonInfo {
 public:
  explicit cMoonInfo(std::int64_t time);

  std::int64_t time() const { return m_time; }
  std::int64_t previousFullMoon() const { return m_previousFullMoon; }  // at or before time()
  std::int64_t nextFullMoon() const { return m_nextFullMoon; }          // strictly after time()
  std::int64_t previousNewMoon() const { return m_previousNewMoon; }
  std::int64_t nextNewMoon() const { return m_nextNewMoon; }
  // Degrees since the previous full moon, in [0, 360): 0 is full, 180 new. In (-360, 0) where the clock
  // stands so far off that no full moon lies before it.
  std::int32_t phase() const { return m_phase; }
  // The illuminated part, "0%" to "100%"; above that for a negative phase.
  const std::string& percentText() const { return m_percentText; }

  // The full moon that is nearer to time(), the next one when both are as near.
  std::int64_t nearestFullMoon() const;
  std::int64_t nearestNewMoon() const;

  // Whether the nearest event falls on the present night, or the one after it, in local time. A night lasts
  // until six in the morning. They ask the clock at each call, not time(); false where the platform cannot
  // tell the local time.
  bool isFullMoonTonight() const;
  bool isFullMoonTomorrow() const;
  bool isNewMoonTonight() const;
  bool isNewMoonTomorrow() const;

 private:
  void calcPhaseForTime();

  std::int64_t m_time;
  std::int64_t m_previousFullMoon = 0;
  std::int64_t m_nextFullMoon = 0;
  std::int64_t m_previousNewMoon = 0;
  std::int64_t m_nextNewMoon = 0;
  std::int32_t m_phase = 0;
  std::string m_percentText;
};
