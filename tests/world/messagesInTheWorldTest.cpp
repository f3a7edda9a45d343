// How the world shows one message after another, with its bottom line.
#include <string>

#include "worldFixture.h"

namespace {

constexpr float tick = 0.04F;  // seconds

// A bottom line counts its time from the moment at which the stars have arrived.
class MessagesInTheWorld : public World {
 protected:
  void giveMessages(std::initializer_list<sMessage> list) {
    leaveOnlyStars();
    xplUserSettings().set("messagesCount", static_cast<int>(list.size()));
    int number = 0;
    for (const sMessage& entry : list) {
      ++number;
      xplUserSettings().set("message" + std::to_string(number), entry.message);
      xplUserSettings().set("bottomline" + std::to_string(number), entry.bottomLine);
    }
  }
  std::unique_ptr<TnoctisWorld> makeInitialized(int width = 640, int height = 480) {
    auto world = makeWorld(width, height);
    world->initializeWorld();
    return world;
  }
  static void runFor(TnoctisWorld& world, float seconds) {
    for (int i = 0; i < static_cast<int>(seconds / tick); ++i) {
      world.update(tick);
    }
  }
  int applied() const { return countEntries("msgStarDirector.applyNextMessage()"); }
};

TEST_F(MessagesInTheWorld, BeginWithTheFirstFrame) {
  giveMessages({{"Moon", "over the sea"}});
  const auto world = makeInitialized();
  EXPECT_EQ(0, applied());
  world->update(tick);
  EXPECT_EQ(1, applied());
  EXPECT_TRUE(world->msgStar(0).isVisible);
  EXPECT_FALSE(world->msgStar(1499).isVisible);
  EXPECT_FALSE(world->msgStarDirector().isIdle());
  EXPECT_EQ("over the sea", world->bottomLine().text());
  EXPECT_EQ(0, world->bottomLine().disabledCount());
}

TEST_F(MessagesInTheWorld, KeepTheBottomLineParkedUntilTheStarsHaveArrived) {
  giveMessages({{"Moon", "over the sea"}});
  const auto world = makeInitialized();
  runFor(*world, 19.8F);
  EXPECT_FLOAT_EQ(641.0F, world->bottomLine().x);
  runFor(*world, 1.0F);
  EXPECT_LT(world->bottomLine().x, 641.0F);
  EXPECT_TRUE(world->msgStarDirector().isIdle());
}

TEST_F(MessagesInTheWorld, AreSpelledByAsManyStarsAsTheyHavePoints) {
  giveMessages({{"Moon", ""}});
  const auto world = makeInitialized();
  runFor(*world, 21.0F);
  const auto& points = world->msgStarDirector().targetPoints();
  for (std::size_t i = 0; i < TnoctisWorld::msgStarCount; ++i) {
    const cMsgStar& star = world->msgStar(i);
    ASSERT_EQ(i < points.size(), star.isVisible);
    if (star.isVisible) {
      ASSERT_FLOAT_EQ(static_cast<float>(points[i].x), star.x);
      ASSERT_FLOAT_EQ(static_cast<float>(points[i].y), star.y);
    }
  }
}

TEST_F(MessagesInTheWorld, FollowAfterThirtySecondsWhenTheLineIsThrough) {
  giveMessages({{"Moon", ""}, {"Sea", ""}});
  // The line begins at 321 after 20 s and is through 6 s later; the message stays for 30 s.
  const auto world = makeInitialized(320, 240);
  runFor(*world, 29.9F);
  EXPECT_EQ(1, applied());
  runFor(*world, 0.3F);
  EXPECT_EQ(2, applied());
  EXPECT_EQ(1, countEntries("project(Sea)"));
}

TEST_F(MessagesInTheWorld, WaitForALongBottomLine) {
  giveMessages({{"Moon", "a line that takes its time"}, {"Sea", ""}});
  const auto world = makeInitialized(1080, 240);
  runFor(*world, 39.0F);
  EXPECT_EQ(1, applied()) << "1081 pixels at 54 a second take 20 s, the line's own length more";
  double rightEdge = world->bottomLine().getRight();
  float leftEdge = 0.0F;
  for (int i = 0; i < 1000 && applied() == 1; ++i) {
    rightEdge = world->bottomLine().getRight();
    leftEdge = world->bottomLine().x;
    world->update(tick);
  }
  EXPECT_EQ(2, applied());
  EXPECT_LT(rightEdge, 54.0 * 0.041) << "one step before";
  EXPECT_LT(leftEdge, -100.0F) << "the whole line is through";
}

TEST_F(MessagesInTheWorld, OfOneEntryComeAgain) {
  giveMessages({{"Moon", ""}});
  const auto world = makeInitialized(320, 240);
  runFor(*world, 95.0F);
  EXPECT_EQ(4, applied());
  EXPECT_EQ(4, countEntries("project(Moon)"));
  EXPECT_EQ(0, world->bottomLine().disabledCount()) << "enabled once";
}

TEST_F(MessagesInTheWorld, PassAtOnceWhileTheClockStandsAtZeroAndTheLineIsThrough) {
  giveMessages({{"Moon", ""}, {"Sea", ""}});
  const auto world = makeInitialized(320, 240);
  world->applyNextMessage();
  // The line flies out before it is looked at, while the transition has not begun to run.
  world->update(100.0F);
  EXPECT_EQ(2, applied());
}

// The order decides every frame from the first message on.
TEST_F(MessagesInTheWorld, DrawTheirLotThenThePlaceThenTheKindThenTheFlights) {
  giveMessages({{"Moon", ""}, {"Sea", ""}});
  for (const std::uint32_t seed : {3U, 4U, 5U, 6U, 7U, 8U}) {
    const auto fresh = makeInitialized();
    xplRandom::seed(seed);
    fresh->applyNextMessage();
    const std::uint32_t after = xplRandom::state();
    const std::size_t points = fresh->msgStarDirector().targetPoints().size();
    xplRandom::seed(seed);
    const int lot = xplRandom::next();
    ASSERT_NE(0, lot % 20) << "choose seeds whose first message is not chosen by chance";
    xplRandom::next();  // the column
    xplRandom::next();  // the row
    const float kind = xplRandom::unit();
    if (static_cast<int>(kind * 1000.0F) % 2 == 1) {
      for (std::size_t i = 0; i < points; ++i) {
        xplRandom::next();  // the drift of a star that falls in
      }
    }
    const float start = xplRandom::unit();
    EXPECT_FLOAT_EQ(start * 10.0F, fresh->msgStar(0).startMovingAtTime());
    for (std::size_t i = 1; i < 2 * points; ++i) {
      xplRandom::next();
    }
    EXPECT_EQ(xplRandom::state(), after) << "seed " << seed;
  }
}

TEST_F(MessagesInTheWorld, WaitWhileTheClockStandsAtZeroButTheLineIsNotThrough) {
  giveMessages({{"Moon", ""}, {"Sea", ""}});
  const auto world = makeInitialized(320, 240);
  world->update(0.0F);
  EXPECT_EQ(1, applied());
  world->applyNextMessage();
  EXPECT_EQ(2, applied());
  // The clock still stands at zero, but the line is enabled and not through.
  world->update(0.0F);
  EXPECT_EQ(2, applied());
}

TEST_F(MessagesInTheWorld, AreChosenAtRandomOnceInTwentyTimes) {
  const std::string names = "abcde";
  giveMessages({{"a", ""}, {"b", ""}, {"c", ""}, {"d", ""}, {"e", ""}});
  const auto world = makeInitialized(64, 48);
  std::size_t next = 0;
  int chosen = 0;
  for (std::uint32_t seed = 1; seed <= 120; ++seed) {
    xplRandom::seed(seed * 7919);
    const int lot = xplRandom::next();
    if (lot % 20 == 0) {
      const int number = xplRandom::next();
      next = static_cast<std::size_t>(number) % names.size();
      ++chosen;
    }
    const std::string expected = std::string("project(") + names[next] + ")";
    const int before = countEntries(expected);
    xplRandom::seed(seed * 7919);
    world->applyNextMessage();
    ASSERT_EQ(before + 1, countEntries(expected)) << "seed " << seed * 7919;
    next = (next + 1) % names.size();
  }
  EXPECT_GT(chosen, 1);
  EXPECT_LT(chosen, 15);
}

TEST_F(MessagesInTheWorld, OfNoEntryLeaveTheSkyAlone) {
  leaveOnlyStars();
  const auto world = makeInitialized();
  world->applyNextMessage();
  EXPECT_EQ(1, applied());
  EXPECT_EQ(0, countEntriesWith("project("));
  EXPECT_EQ(1, world->bottomLine().disabledCount());
}

}  // namespace
