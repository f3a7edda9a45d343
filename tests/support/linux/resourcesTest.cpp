// Tests how resources are found, in a table of the test's own.
#include <string>

#include <gtest/gtest.h>

#include "support/linux/resourceTable.h"
#include "support/linux/resources.h"

namespace {

constexpr std::uint8_t firstWave[] = {1, 2, 3};
constexpr std::uint8_t secondWave[] = {4};
constexpr std::uint8_t bitmap[] = {5, 6};

}  // namespace

const LunariaResource lunariaResourceTable[] = {{"wave", 101, firstWave, 3},
                                                {"wave", 102, secondWave, 1},
                                                {"bitmap", 101, bitmap, 2},
                                                {"icon", 1, bitmap, 0},
                                                {nullptr, 0, nullptr, 0}};

TEST(Resources, AreFoundByTypeAndId) {
  const auto wave = findResource("wave", 101);
  ASSERT_TRUE(wave.has_value());
  EXPECT_EQ(wave->data(), firstWave);
  EXPECT_EQ(wave->size(), 3U);
  const auto picture = findResource("bitmap", 101);
  ASSERT_TRUE(picture.has_value());
  EXPECT_EQ(picture->data(), bitmap);
  EXPECT_EQ(picture->size(), 2U);
}

TEST(Resources, EmptyOneIsFoundToo) {
  const auto icon = findResource("icon", 1);
  ASSERT_TRUE(icon.has_value());
  EXPECT_TRUE(icon->empty());
}

TEST(Resources, AreNothingForAnotherTypeOrId) {
  EXPECT_FALSE(findResource("wave", 100).has_value());
  EXPECT_FALSE(findResource("wave", -1).has_value());
  EXPECT_FALSE(findResource("bitmap", 102).has_value());
  EXPECT_FALSE(findResource("Wave", 101).has_value());
  EXPECT_FALSE(findResource("wav", 101).has_value());
  EXPECT_FALSE(findResource("", 0).has_value());
}
