// What is really played on Linux: each sound from its first sample to its last, alone, and for as long as it
// should.
#include <algorithm>

#include <gmock/gmock.h>

#include "services/linux/audible.h"
#include "services/platform.h"
#include "services/soundPlayer.h"
#include "support/settings.h"

namespace {

// The byte that is silence: of the sounds of unsigned bytes, and of those of signed words.
constexpr std::uint8_t silenceOf(int resource) {
  return resource == 109 || resource == 112 || resource == 111 || resource == 114 ? 0x80 : 0x00;
}

using Bytes = std::vector<std::uint8_t>;

class SoundOutputOfLinux : public Audible {
 protected:
  // Without the silence before the sound, of which the sound system may play a moment while it is made ready.
  static Bytes withoutLead(const Bytes& played, const Bytes& sound, std::uint8_t silence) {
    const auto isHeard = [silence](std::uint8_t byte) { return byte != silence; };
    const auto lead = std::find_if(played.begin(), played.end(), isHeard) - played.begin();
    const auto ownLead = std::find_if(sound.begin(), sound.end(), isHeard) - sound.begin();
    return {played.begin() + std::max<std::ptrdiff_t>(lead - ownLead, 0), played.end()};
  }
  // True where this sound was played whole, and nothing after it.
  static bool isSoundAlone(const Bytes& all, const Bytes& sound, std::uint8_t silence) {
    const Bytes played = withoutLead(all, sound, silence);
    return played.size() >= sound.size() && std::equal(sound.begin(), sound.end(), played.begin()) &&
           isSilentFrom(played, sound.size(), silence);
  }
  // So many bytes of what is played, from the sound's first one on.
  static Bytes readSound(SoundPipe& pipe, const Bytes& sound, std::uint8_t silence, std::size_t count) {
    Bytes played = withoutLead(pipe.read(count), sound, silence);
    const Bytes rest = pipe.read(count - played.size());
    played.insert(played.end(), rest.begin(), rest.end());
    return played;
  }
  // So many bytes of a sound that repeats without a gap.
  static Bytes repeated(const Bytes& sound, std::size_t count) {
    Bytes bytes;
    while (bytes.size() < count) {
      bytes.insert(bytes.end(), sound.begin(), sound.end());
    }
    bytes.resize(count);
    return bytes;
  }
};

TEST_F(SoundOutputOfLinux, PlaysEverySoundWholeAndOnce) {
  for (const int resource : {116, 115, 4, 117, 109, 112, 111, 114}) {
    const Bytes sound = soundOf(resource);
    ASSERT_FALSE(sound.empty());
    SoundPipe pipe(newPath());
    const auto output = xplMakeSoundOutput();
    output->play(resource, false);
    pipe.open();
    EXPECT_TRUE(isSoundAlone(pipe.readToEnd(), sound, silenceOf(resource))) << resource;
  }
}

TEST_F(SoundOutputOfLinux, RepeatsASoundWithoutAGapUntilItIsStopped) {
  for (const int resource : {117, 109}) {
    const Bytes sound = soundOf(resource);
    SoundPipe pipe(newPath());
    const auto output = xplMakeSoundOutput();
    output->play(resource, true);
    pipe.open();
    const std::size_t count = sound.size() * 5 / 2;
    EXPECT_TRUE(readSound(pipe, sound, silenceOf(resource), count) == repeated(sound, count)) << resource;
    output->stop();
    pipe.readToEnd();
  }
}

TEST_F(SoundOutputOfLinux, ANewSoundEndsTheOldOne) {
  SoundPipe first(newPath());
  const auto output = xplMakeSoundOutput();
  output->play(112, true);
  first.open();
  first.read(10'000);
  SoundPipe second(newPath());
  output->play(111, false);
  first.readToEnd();
  second.open();
  EXPECT_TRUE(isSoundAlone(second.readToEnd(), soundOf(111), silenceOf(111)));
  EXPECT_TRUE(first.isAtEnd());
}

TEST_F(SoundOutputOfLinux, ASecondOutputEndsWhatTheFirstOnePlays) {
  SoundPipe pipe(newPath());
  const auto first = xplMakeSoundOutput();
  first->play(112, true);
  pipe.open();
  pipe.read(10'000);
  xplMakeSoundOutput()->stop();
  pipe.readToEnd();
}

TEST_F(SoundOutputOfLinux, AnOutputThatGoesEndsItsSound) {
  SoundPipe pipe(newPath());
  auto output = xplMakeSoundOutput();
  output->play(109, true);
  pipe.open();
  pipe.read(1'000);
  output->stop();
  pipe.readToEnd();
  output.reset();
  EXPECT_EQ(countEntriesWith("silent"), 0);
}

TEST_F(SoundOutputOfLinux, TheLoopOfTheSkyIsInterruptedOnTheHourAndDoesNotComeBack) {
  xplUserSettings().set("snd_selectedSound", 5);
  xplUserSettings().set("snd_loopSound", true);
  SoundPipe background(newPath());
  cSoundPlayer player(xplMakeSoundOutput());
  player.startBackgroundSound();
  background.open();
  const Bytes birds = soundOf(109);
  const std::size_t count = birds.size() + 20'000;
  EXPECT_TRUE(readSound(background, birds, silenceOf(109), count) == repeated(birds, count));
  setLocalTime(10, 59, 59);
  player.checkHourlySound(1.5F);
  EXPECT_EQ(background.read(5'000).size(), 5'000U) << "it goes on until the hour has turned";
  SoundPipe clockSound(newPath());
  setLocalTime(11, 0, 0);
  player.checkHourlySound(1.5F);
  background.readToEnd();
  clockSound.open();
  EXPECT_TRUE(isSoundAlone(clockSound.readToEnd(), soundOf(111), silenceOf(111)));
  player.checkHourlySound(1.5F);
  EXPECT_TRUE(clockSound.isAtEnd());
}

TEST_F(SoundOutputOfLinux, AResourceThatIsNotThereIsSilence) {
  SoundPipe pipe(newPath());
  const std::size_t before = threadCount();
  xplMakeSoundOutput()->play(110, true);
  EXPECT_EQ(threadCount(), before);
}

TEST_F(SoundOutputOfLinux, WithoutASoundThereIsNoThread) {
  const std::size_t before = threadCount();
  {
    cSoundPlayer player(xplMakeSoundOutput());
    player.startBackgroundSound();
    player.playSound(7, true);
    player.checkHourlySound(1.5F);
    player.stopSound();
    EXPECT_EQ(threadCount(), before);
  }
  EXPECT_EQ(threadCount(), before);
}

TEST_F(SoundOutputOfLinux, ItsThreadsGoWithIt) {
  const std::size_t before = threadCount();
  {
    SoundPipe pipe(newPath());
    const auto output = xplMakeSoundOutput();
    output->play(111, false);
    pipe.open();
    EXPECT_GT(threadCount(), before);
    pipe.readToEnd();
  }
  EXPECT_TRUE(threadsComeDownTo(before));
}

TEST_F(SoundOutputOfLinux, ASoundWaitsForTheOneThatWasLeftToEnd) {
  SoundPipe first(newPath());
  auto output = xplMakeSoundOutput();
  output->play(112, true);
  first.open();
  first.read(1'000);
  output.reset();  // the worker goes, and its sound may still be ending
  output = xplMakeSoundOutput();
  SoundPipe second(newPath());
  output->play(111, false);
  first.readToEnd();
  second.open();
  EXPECT_TRUE(isSoundAlone(second.readToEnd(), soundOf(111), silenceOf(111)));
  EXPECT_EQ(countEntriesWith("silent"), 0);
}

}  // namespace
