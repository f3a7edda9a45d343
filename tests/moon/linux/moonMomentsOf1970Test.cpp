// The date of 1970 that the label shows for an event that it does not know, in a zone whose summer time began
// later. Windows holds the present rule for all years and shows an hour more.
#include "moon/moonFixture.h"
#include "moon/moonMoment.h"

namespace {

constexpr MoonMoment moments[] = {
#include "moon/linux/moonMomentsOf1970.inc"
};

class MoonMomentsOf1970 : public MoonTest, public testing::WithParamInterface<MoonMoment> {
 protected:
  void SetUp() override { beginInZone(GetParam().zone); }
};

TEST_P(MoonMomentsOf1970, AreAsComputedElsewhere) {
  clock.set({GetParam().time, 0});
  expectMoment(GetParam());
}

INSTANTIATE_TEST_SUITE_P(InAuckland, MoonMomentsOf1970, testing::ValuesIn(moments));

}  // namespace
