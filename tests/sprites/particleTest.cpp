// How particles move and are restricted.
#include <string>
#include <type_traits>
#include <vector>

#include "particleFixture.h"

namespace {

TEST_F(Particles, MoveBySpeedTimesTime) {
  place(1.0F, 2.0F, 8.0F, -4.0F);
  EXPECT_TRUE(particle.move(0.5F));
  EXPECT_FLOAT_EQ(5.0F, particle.left);
  EXPECT_FLOAT_EQ(0.0F, particle.top);
}

TEST_F(Particles, StandStillWhenNoTimePasses) {
  place(1.0F, 2.0F, 8.0F, -4.0F);
  EXPECT_FALSE(particle.move(0.0F));
  EXPECT_FLOAT_EQ(1.0F, particle.x);
  EXPECT_FLOAT_EQ(2.0F, particle.y);
}

TEST_F(Particles, WithoutSpeedDoNotCountTheMove) {
  particle.addMoveRestriction(bounce);
  place(5.0F, 50.0F, 0.0F, 0.0F);
  for (int i = 0; i < 20; ++i) {
    EXPECT_FALSE(particle.move(0.1F));
  }
  particle.speedX = -1.0F;
  moveTimes(9);
  EXPECT_FLOAT_EQ(-1.0F, particle.speedX);
  moveTimes(1);
  EXPECT_FLOAT_EQ(1.0F, particle.speedX);
}

TEST_F(Particles, KeptRestrictionsApplyOnEveryTenthMoveOnly) {
  particle.addMoveRestriction(bounce);
  place(12.0F, 50.0F, -10.0F, 0.0F);
  moveTimes(9);
  EXPECT_FLOAT_EQ(-10.0F, particle.speedX) << "beyond the edge, but not looked at yet";
  EXPECT_LT(particle.left, 10.0F);
  moveTimes(1);
  EXPECT_FLOAT_EQ(10.0F, particle.speedX);
  moveTimes(10);
  EXPECT_FLOAT_EQ(10.0F, particle.speedX) << "moving inward again";
}

TEST_F(Particles, StandingStillForNoTimeDoesNotCountTheMove) {
  particle.addMoveRestriction(bounce);
  place(5.0F, 50.0F, -1.0F, 0.0F);
  moveTimes(9);
  moveTimes(30, 0.0F);
  EXPECT_FLOAT_EQ(-1.0F, particle.speedX);
  moveTimes(1);
  EXPECT_FLOAT_EQ(1.0F, particle.speedX);
}

TEST_F(Particles, MoveWhereOnlyOneSpeedIsNotZero) {
  place(1.0F, 2.0F, 0.0F, 5.0F);
  EXPECT_TRUE(particle.move(1.0F));
  EXPECT_FLOAT_EQ(1.0F, particle.left);
  EXPECT_FLOAT_EQ(7.0F, particle.top);
}

// Tells when it was applied, and to whom.
class RecordingRestriction : public TorvMoveRestriction {
 public:
  RecordingRestriction(std::string name, std::vector<std::string>& events)
      : m_name(std::move(name)), m_events(events) {}
  bool apply(TorvParticle* particle) override {
    m_events.push_back(m_name + (particle != nullptr ? "" : " to nobody"));
    return true;
  }

 private:
  std::string m_name;
  std::vector<std::string>& m_events;
};

TEST_F(Particles, ApplyTheirRestrictionsInTheOrderInWhichTheyWereAddedAndTwiceWhereAddedTwice) {
  std::vector<std::string> events;
  RecordingRestriction first("first", events);
  RecordingRestriction second("second", events);
  particle.addMoveRestriction(second);
  particle.addMoveRestriction(first);
  particle.addMoveRestriction(second);
  place(0.0F, 0.0F, 1.0F, 0.0F);
  moveTimes(10);
  EXPECT_EQ((std::vector<std::string>{"second", "first", "second"}), events);
  moveTimes(9);
  EXPECT_EQ(3U, events.size());
  moveTimes(1);
  EXPECT_EQ(6U, events.size());
}

TEST_F(Particles, ShareARestrictionAndCountTheirMovesApart) {
  TorvParticle other;
  other.width = 10.0F;
  other.x = 5.0F;
  other.y = 50.0F;
  other.speedX = -1.0F;
  other.addMoveRestriction(bounce);
  particle.addMoveRestriction(bounce);
  place(5.0F, 50.0F, -1.0F, 0.0F);
  moveTimes(10);
  EXPECT_FLOAT_EQ(1.0F, particle.speedX);
  EXPECT_FLOAT_EQ(-1.0F, other.speedX);
  for (int i = 0; i < 10; ++i) {
    other.move(0.1F);
  }
  EXPECT_FLOAT_EQ(1.0F, other.speedX);
}

TEST_F(Particles, EdgesAreSummedInFloatAndWidenedToDouble) {
  static_assert(std::is_same_v<decltype(particle.getRight()), double>);
  static_assert(std::is_same_v<decltype(particle.getBottom()), double>);
  static_assert(std::is_same_v<decltype(area.getRight()), int>);
  place(16777216.0F, 0.5F, 0.0F, 0.0F);
  particle.width = 1.0F;
  particle.height = 0.25F;
  EXPECT_EQ(16777216.0, particle.getRight()) << "a float has no room for the odd pixel";
  EXPECT_EQ(0.75, particle.getBottom());
}

TEST_F(Particles, SettingAnEdgeChangesTheSizeAlone) {
  place(16.0F, 3.0F, 0.0F, 0.0F);
  particle.setRight(26.0F);
  particle.setBottom(9.0F);
  EXPECT_FLOAT_EQ(16.0F, particle.left);
  EXPECT_FLOAT_EQ(10.0F, particle.width);
  EXPECT_FLOAT_EQ(3.0F, particle.top);
  EXPECT_FLOAT_EQ(6.0F, particle.height);
}

TEST_F(Particles, ArePlacedThroughXAndY) {
  particle.x = 7.0F;
  particle.y = 8.0F;
  EXPECT_FLOAT_EQ(7.0F, particle.left);
  EXPECT_FLOAT_EQ(8.0F, particle.top);
  particle.left = 9.0F;
  EXPECT_FLOAT_EQ(9.0F, particle.x);
}

}  // namespace
