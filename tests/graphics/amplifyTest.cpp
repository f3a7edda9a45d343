// How a channel of a colour is amplified.
#include <gtest/gtest.h>

#include "graphics/amplify.h"

namespace {

TEST(Amplify, TruncatesAndStopsAt255) {
  EXPECT_EQ(xplColor(255, 200, 20), amplified({200, 100, 10}, 2.0F, 2.0F, 2.0F));
  EXPECT_EQ(xplColor(99, 33, 0), amplified({199, 100, 10}, 0.5F, 0.333F, 0.0F));
}

TEST(Amplify, KeptANegativeProductWraps) {
  EXPECT_EQ(246, amplifiedChannel(10, -1.0F));
  EXPECT_EQ(0, amplifiedChannel(255, -256.0F / 255.0F * 1.0F));
  EXPECT_EQ(255, amplifiedChannel(10, 1.0e30F));
  EXPECT_EQ(0, amplifiedChannel(10, -1.0e30F));
}

}  // namespace
