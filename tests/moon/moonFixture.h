// What the tests of the moon share: a process that knows no time correction yet, in a zone of the test's own.
#pragma once

#include <string>

#include "harness/privateFolders.h"
#include "moon/machineZone.h"
#include "moon/moonTimeCorrection.h"

// While it lives the correction is computed anew by its first use, as in a process that just started; so it
// is after it went.
class FreshMoonTimeCorrection {
 public:
  FreshMoonTimeCorrection() { forget(); }
  ~FreshMoonTimeCorrection() { forget(); }
  FreshMoonTimeCorrection(const FreshMoonTimeCorrection&) = delete;
  FreshMoonTimeCorrection& operator=(const FreshMoonTimeCorrection&) = delete;

  static void forget() { MoonTimeCorrection::m_kept.reset(); }
};

// A test of moments and texts, which hold in one zone.
class MoonTest : public PrivateFolders {
 protected:
  void SetUp() override { beginInZone("UTC"); }

  // Skips the test where the zone cannot be had.
  void beginInZone(const char* name) {
    if (!zone.set(name)) {
      GTEST_SKIP() << "this machine's zone is not " << name;
    }
  }

  MachineZone zone;
  FreshMoonTimeCorrection correction;
};

// "America/St_Johns" as it may stand in the name of a test: "StJohns".
inline std::string zoneInTestName(const std::string& zone) {
  std::string name;
  for (const char character : zone.substr(zone.find('/') + 1)) {
    if (character != '_') {
      name += character;
    }
  }
  return name;
}
