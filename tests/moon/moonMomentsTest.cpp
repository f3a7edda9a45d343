// The moon and its label at many moments in universal time: inside, before and after the tables.
#include "moon/moonFixture.h"
#include "moon/moonMoment.h"

namespace {

constexpr MoonMoment moments[] = {
#include "moon/moonMoments.inc"
};

class MoonMoments : public MoonTest, public testing::WithParamInterface<MoonMoment> {};

TEST_P(MoonMoments, AreAsComputedElsewhere) {
  clock.set({GetParam().time, 0});
  expectMoment(GetParam());
}

INSTANTIATE_TEST_SUITE_P(InUniversalTime, MoonMoments, testing::ValuesIn(moments));

}  // namespace
