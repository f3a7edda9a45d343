// What the tests of the moon share: a process that knows no time correction yet, in universal time.
#pragma once

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

// A test of moments and texts, which hold in universal time.
class MoonTest : public PrivateFolders {
 protected:
  void SetUp() override {
    if (!zone.isUniversal()) {
      GTEST_SKIP() << "this machine's zone cannot be set for a test, and is not UTC";
    }
  }

  UniversalZone zone;
  FreshMoonTimeCorrection correction;
};
