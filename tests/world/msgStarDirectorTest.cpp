// Which message comes next, and what the transition tells.
#include <string>

#include "support/assertion.h"
#include "world/msgStarDirector.h"
#include "worldFixture.h"

namespace {

class MsgStarDirector : public World {
 protected:
  static void giveMessages(int count) {
    const xplSettings::Batch oneSave(xplUserSettings());
    xplUserSettings().set("messagesCount", count);
    for (int i = 1; i <= count; ++i) {
      xplUserSettings().set("message" + std::to_string(i), "m" + std::to_string(i));
    }
    xplUserSettings().set("msg_defaultMessagesAdded", true);
  }
};

TEST_F(MsgStarDirector, HasTheDefaultMessagesAtFirst) {
  cMsgStarDirector director;
  EXPECT_FALSE(director.hasMessages()) << "not read yet";
  director.prepare();
  ASSERT_TRUE(director.hasMessages());
  EXPECT_EQ("Your message\r\nhere", director.getMsg()->message);
  EXPECT_EQ("Lunaria\r\nscreensaver", director.getMsg()->message);
}

TEST_F(MsgStarDirector, GoesThroughTheMessagesAndBeginsAgain) {
  giveMessages(3);
  cMsgStarDirector director;
  director.prepare();
  for (const char* expected : {"m1", "m2", "m3", "m1", "m2", "m3", "m1"}) {
    EXPECT_EQ(expected, director.getMsg()->message);
  }
}

TEST_F(MsgStarDirector, WithoutMessagesGivesNone) {
  giveMessages(0);
  cMsgStarDirector director;
  director.prepare();
  EXPECT_FALSE(director.hasMessages());
  EXPECT_EQ(nullptr, director.getMsg());
  director.chooseRandomMessage();
  EXPECT_EQ(nullptr, director.getMsg());
}

TEST_F(MsgStarDirector, ChoosesEveryMessageAsOftenAtRandom) {
  giveMessages(4);
  cMsgStarDirector director;
  director.prepare();
  xplRandom::seed(6);
  int chosen[4] = {};
  for (int i = 0; i < 10000; ++i) {
    director.chooseRandomMessage();
    ++chosen[director.getMsg()->message[1] - '1'];
  }
  for (const int count : chosen) {
    EXPECT_NEAR(2500, count, 150);
  }
}

TEST_F(MsgStarDirector, GoesOnBehindTheMessageChosenAtRandom) {
  giveMessages(4);
  cMsgStarDirector director;
  director.prepare();
  xplRandom::seed(6);
  const int next = xplRandom::next() % 4;
  xplRandom::seed(6);
  director.chooseRandomMessage();
  EXPECT_EQ("m" + std::to_string(next + 1), director.getMsg()->message);
  EXPECT_EQ("m" + std::to_string((next + 1) % 4 + 1), director.getMsg()->message);
}

TEST_F(MsgStarDirector, IsIdleExceptWhileStarsAreOnTheirWay) {
  giveMessages(1);
  cMsgStarDirector director;
  director.prepare();
  EXPECT_TRUE(director.isIdle());
  EXPECT_EQ(nullptr, director.transition());
  std::vector<std::unique_ptr<cMsgStar>> stars;
  stars.push_back(std::make_unique<cMsgStar>(2.5F, 0.4F, 0.5F, 30.0F));
  director.project("x", xplRect<int>(0, 0, 640, 480));
  director.startTransition(xplRect<int>(0, 0, 640, 480), stars);
  director.advance(0.04F);
  EXPECT_FALSE(director.isIdle());
  director.advance(19.96F);
  EXPECT_TRUE(director.isIdle());
  EXPECT_FALSE(director.targetPoints().empty());
}

TEST_F(MsgStarDirector, ReportsMissingStars) {
  giveMessages(1);
  cMsgStarDirector director;
  director.prepare();
  director.startTransition(xplRect<int>(0, 0, 640, 480), {});
  EXPECT_EQ(
      xplAssertionsReport ? 1 : 0,
      countEntriesWith("#4597: startTransition called but aParticleList=NULL, source cMsgStarDirector"));
}

TEST_F(MsgStarDirector, TakesThousandsOfMessages) {
  giveMessages(5000);
  cMsgStarDirector director;
  director.prepare();
  for (int i = 0; i < 4999; ++i) {
    director.getMsg();
  }
  EXPECT_EQ("m5000", director.getMsg()->message);
  EXPECT_EQ("m1", director.getMsg()->message);
}

}  // namespace
