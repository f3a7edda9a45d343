// The process's pseudo-random numbers: the same sequence on every platform for the same seed.
#pragma once

#include <cstdint>

// A linear congruential generator, x <- x * 214013 + 2531011 (32 bits), result (x >> 16) & 0x7fff.
// The order of draws decides every frame: one draw a statement.
class xplRandom {
 public:
  // The largest result of next(); results divided by resultCount lie in [0, 1).
  static constexpr int maxResult = 32767;
  static constexpr int resultCount = 32768;

  // Sets the state. A run that is not seeded is seeded from the clock by its first draw.
  static void seed(std::uint32_t state);

  // The state as it stands; equal states draw equal sequences. Seeds first where nothing has yet.
  static std::uint32_t state();

  // The next result, in [0, 32767].
  static int next();

  // The next result divided by 32768, in [0, 1).
  static float unit();

  // A value in [lo, hi): unit() * (hi - lo) + lo.
  static float between(float lo, float hi);
};
