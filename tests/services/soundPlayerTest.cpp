// Which sounds are played when.
#include <ctime>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "recordingServices.h"
#include "services/soundPlayer.h"
#include "support/settings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SoundPlayer : public PrivateFolders {
 protected:
  std::unique_ptr<cSoundPlayer> makePlayer() {
    return std::make_unique<cSoundPlayer>(std::make_unique<RecordingSound>(calls));
  }
  // Sets the clock so that the local time is this one on the day of the tests.
  void setLocalTime(int hour, int minute, int second) {
    std::tm local = *xplClock::localTime(clock.now().seconds);
    local.tm_hour = hour;
    local.tm_min = minute;
    local.tm_sec = second;
    local.tm_isdst = -1;
    clock.set({std::mktime(&local), 0});
  }
  // A check at the last second of an hour and one after it.
  Calls callsWhenItTurns(int hour) {
    auto player = makePlayer();
    setLocalTime(hour == 0 ? 23 : hour - 1, 59, 59);
    player->checkHourlySound(1.5F);
    setLocalTime(hour, 0, 0);
    player->checkHourlySound(1.5F);
    player.reset();
    return std::exchange(calls, {});
  }

  Calls calls;
};

TEST_F(SoundPlayer, PlaysTheResourceOfEachSound) {
  const auto player = makePlayer();
  const int resources[] = {116, 115, 4, 117, 109, 112};
  for (int index = 1; index <= 6; ++index) {
    calls.clear();
    player->playSound(index, false);
    EXPECT_THAT(calls, ElementsAre("stop", "play " + std::to_string(resources[index - 1])));
  }
}

TEST_F(SoundPlayer, RepeatsASoundOnRequest) {
  makePlayer()->playSound(4, true);
  EXPECT_THAT(calls, ElementsAre("stop", "loop 117", "stop"));
}

TEST_F(SoundPlayer, OnlyStopsForAnyOtherIndex) {
  for (const int index : {0, 7, -1, 116, 2147483647, -2147483647 - 1}) {
    const auto player = makePlayer();
    calls.clear();
    player->playSound(index, true);
    EXPECT_THAT(calls, ElementsAre("stop")) << index;
  }
}

TEST_F(SoundPlayer, StopsAllSoundWhenItGoes) {
  makePlayer();
  EXPECT_THAT(calls, ElementsAre("stop"));
}

TEST_F(SoundPlayer, TheBackgroundSoundIsTheChosenOneAtThatMoment) {
  const auto player = makePlayer();
  xplUserSettings().set("snd_selectedSound", 5);
  player->startBackgroundSound();
  xplUserSettings().set("snd_loopSound", true);
  player->startBackgroundSound();
  EXPECT_THAT(calls, ElementsAre("stop", "play 109", "stop", "loop 109"));
}

TEST_F(SoundPlayer, WithoutAChoiceTheBackgroundIsSilent) {
  const auto player = makePlayer();
  player->startBackgroundSound();
  EXPECT_THAT(calls, ElementsAre("stop"));
}

TEST_F(SoundPlayer, WithASelectionOutOfRangeTheBackgroundIsSilent) {
  xplUserSettings().set("snd_selectedSound", 7);
  const auto player = makePlayer();
  player->startBackgroundSound();
  EXPECT_THAT(calls, ElementsAre("stop"));
}

TEST_F(SoundPlayer, WithoutAnOutputEverythingIsSilent) {
  cSoundPlayer player;
  player.playSound(1, true);
  player.playCuckoo();
  player.startBackgroundSound();
  setLocalTime(10, 59, 59);
  player.checkHourlySound(1.5F);
  setLocalTime(11, 0, 0);
  player.checkHourlySound(1.5F);
  player.stopSound();
  EXPECT_THAT(calls, IsEmpty());
}

TEST_F(SoundPlayer, KeptTheCuckooStopsTwiceAndThenPlaysOnce) {
  const auto player = makePlayer();
  player->playCuckoo();
  EXPECT_THAT(calls, ElementsAre("stop", "stop", "play 111"));
}

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
