// When the night sky is heard.
#include <gmock/gmock.h>

#include "services/recordingServices.h"
#include "worldFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SoundOfTheWorld : public World {
 protected:
  SoundOfTheWorld() {
    leaveOnlyStars();
    native = std::make_unique<TestWindow>(160, 120, 0, 0);
    window = std::make_unique<xplWindow>(native->handle());
  }
  std::unique_ptr<TnoctisWorld> makeAudibleWorld(std::int32_t monitorId) {
    return std::make_unique<TnoctisWorld>(window.get(), monitorId, monitors, "folder",
                                          std::make_unique<RecordingSound>(calls));
  }

  Calls calls;
};

TEST_F(SoundOfTheWorld, BeginsWhenItIsBuiltAndEndsWithIt) {
  xplUserSettings().set("snd_selectedSound", 3);
  xplUserSettings().set("snd_loopSound", true);
  auto world = makeAudibleWorld(0);
  EXPECT_THAT(calls, ElementsAre("stop", "loop 4"));
  world->initializeWorld();
  world->update(0.04F);
  EXPECT_EQ(calls.size(), 2U);
  world.reset();
  EXPECT_THAT(calls, ElementsAre("stop", "loop 4", "stop"));
}

TEST_F(SoundOfTheWorld, WithoutAChoiceNothingPlays) {
  makeAudibleWorld(0).reset();
  EXPECT_THAT(calls, ElementsAre("stop", "stop"));
}

TEST_F(SoundOfTheWorld, TheHourStrikesAtTheFrameThatCompletesOneAndAHalfSeconds) {
  const auto world = makeAudibleWorld(0);
  calls.clear();
  setLocalTime(10, 59, 59);
  for (int frame = 0; frame < 38; ++frame) {
    world->update(0.04F);
  }
  setLocalTime(11, 0, 0);
  for (int frame = 0; frame < 37; ++frame) {
    world->update(0.04F);
  }
  EXPECT_THAT(calls, IsEmpty());
  world->update(0.04F);
  EXPECT_THAT(calls, ElementsAre("stop", "stop", "play 111"));
}

TEST_F(SoundOfTheWorld, APreviewIsSilentAlsoOnTheHour) {
  xplUserSettings().set("snd_selectedSound", 3);
  {
    const auto world = makeAudibleWorld(TnoctisWorld::previewMonitorId);
    setLocalTime(10, 59, 59);
    world->update(1.5F);
    setLocalTime(11, 0, 0);
    world->update(1.5F);
  }
  EXPECT_THAT(calls, IsEmpty());
}

TEST_F(SoundOfTheWorld, WithoutAnOutputTheSkyIsTheSame) {
  const auto world = makeWorld(160, 120);
  xplUserSettings().set("snd_selectedSound", 3);
  setLocalTime(10, 59, 59);
  world->update(1.5F);
  setLocalTime(11, 0, 0);
  world->update(1.5F);
  world->draw();
  EXPECT_THAT(calls, IsEmpty());
}

}  // namespace
