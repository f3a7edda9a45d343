// The moon and its label at many moments in three zones: one that is half an hour off, one with summer time
// in the north, one with summer time in the south.
#include "moon/moonFixture.h"
#include "moon/moonMoment.h"
#include "support/linux/temporaryEnvironment.h"

namespace {

constexpr MoonMoment moments[] = {
#include "moon/linux/moonMomentsInZones.inc"
};

class MoonMomentsInZones : public MoonTest, public testing::WithParamInterface<MoonMoment> {
 protected:
  TemporaryEnvironment environment;
};

TEST_P(MoonMomentsInZones, AreAsComputedElsewhere) {
  environment.set("TZ", GetParam().zone);
  clock.set({GetParam().time, 0});
  expectMoment(GetParam());
}

INSTANTIATE_TEST_SUITE_P(OfTheWorld, MoonMomentsInZones, testing::ValuesIn(moments));

}  // namespace
