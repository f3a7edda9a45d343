// The two tables of names.
#include "moon/moonNames.h"

#include <array>
#include <cstdlib>

namespace {

constexpr std::array<const char*, 12> fullMoonNames = {
    "\"Wolf Moon\"",    "\"Snow Moon\"",       "\"Worm Moon\"",   "\"Pink Moon\"",
    "\"Flower Moon\"",  "\"Strawberry Moon\"", "\"Buck Moon\"",   "\"Sturgeon Moon\"",
    "\"Harvest Moon\"", "\"Hunter's Moon\"",   "\"Beaver Moon\"", "\"Cold Moon\""};

constexpr int quarterHalfWidth = 3;  // degrees on each side that still count as the quarter itself

bool isAbout(int degrees, int quarter) {
  return std::abs(degrees - quarter) <= quarterHalfWidth;
}

}  // namespace

const char* fullMoonName(int month) {
  const auto position = static_cast<unsigned>(month) - 1U;  // 0 and below lie beyond the end
  return position < fullMoonNames.size() ? fullMoonNames[position] : "error #528";
}

const char* phaseName(int degrees) {
  const int phase = degrees % 360;
  if (phase < 4 || phase > 356) {
    return "Full Moon";
  }
  if (isAbout(phase, 90)) {
    return "Last Quarter";
  }
  if (isAbout(phase, 180)) {
    return "New Moon";
  }
  if (isAbout(phase, 270)) {
    return "First Quarter";
  }
  if (phase < 90) {
    return "Waning Gibbous Moon";
  }
  if (phase < 180) {
    return "Waning Crescent Moon";
  }
  return phase < 270 ? "Waxing Crescent Moon" : "Waxing Gibbous Moon";
}
