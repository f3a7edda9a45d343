// Implements the generator.
#include "support/random.h"

#include <cmath>
#include <optional>

#include "support/clock.h"

namespace {

std::optional<std::uint32_t> generatorState;

// The state, seeded from the clock where nothing has seeded it.
std::uint32_t& seededState() {
  if (!generatorState) {
    generatorState = static_cast<std::uint32_t>(xplClock::now());
  }
  return *generatorState;
}

}  // namespace

void xplRandom::seed(std::uint32_t state) {
  generatorState = state;
}

std::uint32_t xplRandom::state() {
  return seededState();
}

int xplRandom::next() {
  std::uint32_t& state = seededState();
  state = state * 214013U + 2531011U;
  return static_cast<int>((state >> 16) & 0x7fffU);
}

float xplRandom::unit() {
  return static_cast<float>(next()) / static_cast<float>(resultCount);
}

float xplRandom::between(float lo, float hi) {
  const float value = unit() * (hi - lo) + lo;
  // Far from zero the sum can round up to the end, which is not in the range.
  return value >= hi && lo < hi ? std::nextafter(hi, lo) : value;
}
