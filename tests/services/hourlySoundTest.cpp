// When the clock strikes.
#include <gmock/gmock.h>

#include "services/soundFixture.h"
#include "support/settings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST_F(SoundPlayer, TheClockStrikesAtTheFirstCheckOfTheHour) {
  const auto player = makePlayer();
  setLocalTime(10, 59, 59);
  player->checkHourlySound(1.5F);
  EXPECT_THAT(calls, IsEmpty());
  setLocalTime(11, 0, 0);
  player->checkHourlySound(1.5F);
  EXPECT_THAT(calls, ElementsAre("stop", "stop", "play 111"));
  player->checkHourlySound(1.5F);
  EXPECT_EQ(calls.size(), 3U);
}

TEST_F(SoundPlayer, KeptFromSevenToNineItIsTheMorningSoundAndOtherwiseTheCuckoo) {
  for (int hour = 0; hour < 24; ++hour) {
    const bool isMorning = hour >= 7 && hour <= 9;
    EXPECT_THAT(callsWhenItTurns(hour),
                ElementsAre("stop", "stop", isMorning ? "play 114" : "play 111", "stop"))
        << hour;
  }
}

TEST_F(SoundPlayer, ARunThatStartsOnTheHourDoesNotStrike) {
  const auto player = makePlayer();
  setLocalTime(11, 0, 0);
  player->checkHourlySound(1.5F);
  setLocalTime(11, 0, 2);
  player->checkHourlySound(1.5F);
  EXPECT_THAT(calls, IsEmpty());
}

TEST_F(SoundPlayer, KeptWithoutACheckInTheLastMinuteItDoesNotStrike) {
  const auto player = makePlayer();
  setLocalTime(10, 58, 59);
  player->checkHourlySound(1.5F);
  setLocalTime(11, 0, 0);
  player->checkHourlySound(1.5F);
  EXPECT_THAT(calls, IsEmpty());
}

TEST_F(SoundPlayer, LooksAtTheClockEveryOneAndAHalfSeconds) {
  const auto player = makePlayer();
  setLocalTime(10, 59, 58);
  player->checkHourlySound(1.5F);
  setLocalTime(11, 0, 0);
  for (int frame = 1; frame <= 37; ++frame) {
    player->checkHourlySound(0.04F);  // 1.48 seconds in all
  }
  EXPECT_THAT(calls, IsEmpty());
  player->checkHourlySound(0.04F);
  EXPECT_THAT(calls, ElementsAre("stop", "stop", "play 111"));
}

TEST_F(SoundPlayer, KeptSwitchedOffItDoesNotCountTheTime) {
  const auto player = makePlayer();
  setLocalTime(10, 59, 58);
  player->checkHourlySound(1.5F);
  setLocalTime(11, 0, 0);
  xplUserSettings().set("snd_cookooEveryHour", false);
  player->checkHourlySound(1.4F);
  player->checkHourlySound(100.0F);
  xplUserSettings().set("snd_cookooEveryHour", true);
  player->checkHourlySound(1.4F);
  EXPECT_THAT(calls, IsEmpty());
  player->checkHourlySound(0.2F);
  EXPECT_THAT(calls, ElementsAre("stop", "stop", "play 111"));
}

TEST_F(SoundPlayer, KeptTheBackgroundSoundDoesNotComeBackAfterTheClock) {
  xplUserSettings().set("snd_selectedSound", 1);
  xplUserSettings().set("snd_loopSound", true);
  const auto player = makePlayer();
  player->startBackgroundSound();
  setLocalTime(10, 59, 59);
  player->checkHourlySound(1.5F);
  setLocalTime(11, 0, 0);
  for (int i = 0; i < 100; ++i) {
    player->checkHourlySound(1.5F);
  }
  EXPECT_THAT(calls, ElementsAre("stop", "loop 116", "stop", "stop", "play 111"));
}

TEST_F(SoundPlayer, ATimeThatCannotBeToldIsPassedOver) {
  const auto player = makePlayer();
  setLocalTime(10, 59, 59);
  player->checkHourlySound(1.5F);
  const auto before = clock.now();
  clock.set({INT64_MAX, 0});
  player->checkHourlySound(1.5F);
  clock.set({before.seconds + 1, 0});
  player->checkHourlySound(1.5F);
  EXPECT_THAT(calls, ElementsAre("stop", "stop", "play 111"));
}

}  // namespace
