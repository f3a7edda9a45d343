// Tests what is heard of each control of the Sounds page.
#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/sheet/soundPreview.h"

using testing::ElementsAre;

namespace {

// Notes the resource of each sound; 0 for silence, and a minus for one that would be repeated.
class RecordingOutput : public xpliSoundOutput {
 public:
  explicit RecordingOutput(std::vector<int>& heard) : m_heard(heard) {}
  void stop() override { m_heard.push_back(0); }
  void play(int resourceId, bool loop) override { m_heard.push_back(loop ? -resourceId : resourceId); }

 private:
  std::vector<int>& m_heard;
};

class SoundPreviewTest : public PrivateFolders {
 protected:
  // What is heard last of a click.
  int heardOf(int control) {
    sheet.clicked(soundsPage, control);
    return heard.back();
  }
  std::vector<int> heard;
  cSoundPlayer player{std::make_unique<RecordingOutput>(heard)};
  SettingsSheet sheet{xplUserSettings(), soundPreview(player)};
};

TEST_F(SoundPreviewTest, EachRadioButtonPlaysItsSoundOnce) {
  EXPECT_EQ(heardOf(controlIds::sleepingWithTheOneILove), 116);
  EXPECT_EQ(heardOf(controlIds::sleepReminder), 115);
  EXPECT_EQ(heardOf(controlIds::lullaby), 4);
  EXPECT_EQ(heardOf(controlIds::oceanWaves), 117);
  EXPECT_EQ(heardOf(controlIds::birds), 109);
  EXPECT_EQ(heardOf(controlIds::feelingBlue), 112);
}

TEST_F(SoundPreviewTest, SilenceEndsTheSound) {
  EXPECT_EQ(heardOf(controlIds::silence), 0);
}

TEST_F(SoundPreviewTest, TheCuckooCalls) {
  EXPECT_EQ(heardOf(controlIds::cookooEveryHour), 111);
}

TEST_F(SoundPreviewTest, TheLoopSettingIsNotAsked) {
  cSoundSettings().snd_loopSound.write(true);
  EXPECT_EQ(heardOf(controlIds::birds), 109);
}

}  // namespace
