// The moon and its label at many moments in three zones: one that is half an hour off, one with summer time
// in the north, one with summer time in the south.
#include "moon/moonFixture.h"
#include "moon/moonMoment.h"

namespace {

constexpr MoonMoment moments[] = {
#include "moon/moonMomentsInZones.inc"
};

class MoonMomentsInZones : public MoonTest, public testing::WithParamInterface<MoonMoment> {
 protected:
  void SetUp() override { beginInZone(GetParam().zone); }
};

TEST_P(MoonMomentsInZones, AreAsComputedElsewhere) {
  clock.set({GetParam().time, 0});
  expectMoment(GetParam());
}

INSTANTIATE_TEST_SUITE_P(OfTheWorld, MoonMomentsInZones, testing::ValuesIn(moments), [](const auto& test) {
  return zoneInTestName(test.param.zone) + std::to_string(test.index);
});

}  // namespace
