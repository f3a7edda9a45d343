// Which sounds are played when.
#include <gmock/gmock.h>

#include "services/soundFixture.h"
#include "support/settings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

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

}  // namespace
