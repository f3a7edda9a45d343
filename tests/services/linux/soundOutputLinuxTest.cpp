// What is really played on Linux: each sound from its first sample to its last, alone, and for as long as it
// should.
#include <algorithm>
#include <ctime>

#include <gmock/gmock.h>

#include "services/linux/audible.h"
#include "services/platform.h"
#include "services/soundPlayer.h"
#include "support/settings.h"

namespace {

constexpr std::uint8_t silence8 = 0x80;   // of unsigned bytes
constexpr std::uint8_t silence16 = 0x00;  // of signed words

using Bytes = std::vector<std::uint8_t>;

class SoundOutputOfLinux : public Audible {
 protected:
  static bool beginsWith(const Bytes& played, const Bytes& sound) {
    return played.size() >= sound.size() && std::equal(sound.begin(), sound.end(), played.begin());
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
  void setLocalTime(int hour, int minute, int second) {
    std::tm local = *xplClock::localTime(clock.now().seconds);
    local.tm_hour = hour;
    local.tm_min = minute;
    local.tm_sec = second;
    local.tm_isdst = -1;
    clock.set({std::mktime(&local), 0});
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
    const Bytes played = pipe.readToEnd();
    EXPECT_TRUE(beginsWith(played, sound)) << resource;
    const bool isWords = resource == 116 || resource == 115 || resource == 4 || resource == 117;
    EXPECT_TRUE(isSilentFrom(played, sound.size(), isWords ? silence16 : silence8)) << resource;
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
    EXPECT_EQ(pipe.read(count), repeated(sound, count)) << resource;
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
  EXPECT_TRUE(beginsWith(second.readToEnd(), soundOf(111)));
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
  EXPECT_EQ(background.read(count), repeated(birds, count));
  setLocalTime(10, 59, 59);
  player.checkHourlySound(1.5F);
  EXPECT_EQ(background.read(5'000).size(), 5'000U) << "it goes on until the hour has turned";
  SoundPipe clockSound(newPath());
  setLocalTime(11, 0, 0);
  player.checkHourlySound(1.5F);
  background.readToEnd();
  clockSound.open();
  const Bytes cuckoo = soundOf(111);
  const Bytes struck = clockSound.readToEnd();
  EXPECT_TRUE(beginsWith(struck, cuckoo));
  EXPECT_TRUE(isSilentFrom(struck, cuckoo.size(), silence8));
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
  EXPECT_EQ(threadCount(), before);
}

}  // namespace
