// A program cannot change the zone of the machine; it can only look.
#include <windows.h>

#include "moon/machineZone.h"

struct UniversalZone::Previous {};

UniversalZone::UniversalZone() = default;

UniversalZone::~UniversalZone() = default;

bool UniversalZone::isUniversal() const {
  TIME_ZONE_INFORMATION zone{};
  return GetTimeZoneInformation(&zone) == TIME_ZONE_ID_UNKNOWN && zone.Bias == 0;
}
