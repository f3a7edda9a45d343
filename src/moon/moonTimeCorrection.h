// How far a UTC instant that was read as local time is from the truth.
#pragma once

#include <cstdint>
#include <optional>

class MoonTimeCorrection {
 public:
  // Seconds to add to such an instant. Computed by the first call in the process from the clock as it stands
  // then, and kept; 0 where the platform cannot break that moment down. Frame thread only.
  static std::int64_t seconds();

 private:
  friend class FreshMoonTimeCorrection;  // of the tests, which live in many zones one after another

  inline static std::optional<std::int64_t> m_kept;
};
