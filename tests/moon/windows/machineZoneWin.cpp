// A program cannot change the zone of the machine; it can only look which one it is.
#include <string>
#include <utility>

#include <windows.h>

#include "moon/machineZone.h"

namespace {

bool isUniversal(const TIME_ZONE_INFORMATION& zone) {
  return zone.Bias == 0 && zone.StandardBias == 0 && zone.StandardDate.wMonth == 0;
}

constexpr std::pair<const char*, const wchar_t*> systemNames[] = {
    {"Asia/Kolkata", L"India Standard Time"},
    {"America/St_Johns", L"Newfoundland Standard Time"},
    {"Pacific/Auckland", L"New Zealand Standard Time"},
};

}  // namespace

struct MachineZone::Previous {};

MachineZone::MachineZone() = default;

MachineZone::~MachineZone() = default;

bool MachineZone::set(const char* name) {
  const std::string wanted = name;
  if (wanted == "UTC") {
    TIME_ZONE_INFORMATION zone{};
    return GetTimeZoneInformation(&zone) != TIME_ZONE_ID_INVALID && isUniversal(zone);
  }
  DYNAMIC_TIME_ZONE_INFORMATION present{};
  if (GetDynamicTimeZoneInformation(&present) == TIME_ZONE_ID_INVALID) {
    return false;
  }
  for (const auto& [zoneName, systemName] : systemNames) {
    if (wanted == zoneName) {
      return std::wstring(systemName) == present.TimeZoneKeyName;
    }
  }
  return false;
}
