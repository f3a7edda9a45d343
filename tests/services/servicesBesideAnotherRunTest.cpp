// What remains of the services for a run beside another one.
#include <gtest/gtest.h>

#include "services/services.h"

namespace {

TEST(ServicesBesideAnotherRun, AreThePreventionOfSleepAlone) {
  const xplServices all = xplServices::ofPlatform();
  ASSERT_TRUE(all.makeSoundOutput && all.makeKeepAwake && all.makeAnalytics);
  const xplServices left = all.besideAnotherRun();
  EXPECT_FALSE(left.makeSoundOutput);
  EXPECT_FALSE(left.makeAnalytics);
  EXPECT_TRUE(left.makeKeepAwake);
}

TEST(ServicesBesideAnotherRun, AreNoneWhereThereWereNone) {
  EXPECT_FALSE(xplServices{}.besideAnotherRun().makeKeepAwake);
}

}  // namespace
