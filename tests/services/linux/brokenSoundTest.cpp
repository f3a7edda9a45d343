// What becomes of sounds that are damaged, and of sound systems that are missing or do not answer.
#include <chrono>
#include <cstdlib>
#include <filesystem>

#include <gmock/gmock.h>

#include "services/linux/audible.h"
#include "services/linux/soundOutputLinux.h"
#include "services/platform.h"
#include "support/linux/resources.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds longest = milliseconds(20'000);

class BrokenSound : public Audible {
 protected:
  // Plays these bytes to their end.
  static void play(const Bytes& bytes) {
    SoundOutputLinux output([&bytes](int) { return std::span<const std::uint8_t>(bytes); });
    output.play(1, false);
    if (const auto worker = SoundWorker::sharedIfAny()) {
      EXPECT_TRUE(worker->waitUntilSilent(longest));
    }
  }
  static Bytes cuckoo() {
    const auto bytes = *findResource("wave", 111);
    return {bytes.begin(), bytes.end()};
  }
  static void setDriver(const char* name) { setenv("SDL_AUDIODRIVER", name, 1); }
};

TEST_F(BrokenSound, ADamagedFileIsSilentAndSaidInTheLog) {
  setDriver("dummy");
  play({'n', 'o', ' ', 's', 'o', 'u', 'n', 'd'});
  EXPECT_EQ(countEntriesWith("silent: the sound is damaged: "), 1);
}

TEST_F(BrokenSound, AFileThatBreaksOffAnywhereInItsHeadIsBorne) {
  setDriver("dummy");
  for (std::size_t length = 1; length <= 46; ++length) {
    Bytes bytes = cuckoo();
    bytes.resize(length);
    play(bytes);
  }
  EXPECT_GE(countEntriesWith("silent: "), 40);
}

TEST_F(BrokenSound, AnyWrongByteOfTheHeadIsBorne) {
  setDriver("dummy");
  for (const int resource : {111, 4}) {
    const auto whole = *findResource("wave", resource);
    for (std::size_t place = 0; place < 48; ++place) {
      Bytes bytes(whole.begin(), whole.begin() + 700);
      bytes[place] ^= 0xFF;
      play(bytes);
    }
  }
}

TEST_F(BrokenSound, AnEmptyFileNeedsNoThread) {
  const std::size_t before = threadCount();
  const Bytes empty;
  SoundOutputLinux output([&empty](int) { return std::span<const std::uint8_t>(empty); });
  output.play(1, true);
  EXPECT_EQ(threadCount(), before);
}

TEST_F(BrokenSound, WithoutASoundSystemItIsSilentAndSaysSoOnce) {
  setDriver("there is no such driver");
  {
    const auto output = xplMakeSoundOutput();
    const auto start = Clock::now();
    output->play(116, true);
    EXPECT_LT(Clock::now() - start, milliseconds(50)) << "nobody waits for it";
    EXPECT_TRUE(SoundWorker::shared()->waitUntilSilent(longest));
    output->stop();
    output->stop();
  }
  EXPECT_EQ(countEntriesWith("silent: no sound system: "), 1);
  EXPECT_EQ(countEntries("silent", "ERROR"), 0);
}

TEST_F(BrokenSound, WithoutACardNothingWaits) {
  setDriver("alsa");
  setenv("ALSA_CONFIG_PATH", "/dev/null", 1);
  const auto start = Clock::now();
  {
    const auto output = xplMakeSoundOutput();
    output->play(116, true);
    EXPECT_LT(Clock::now() - start, milliseconds(50));
    EXPECT_TRUE(SoundWorker::shared()->waitUntilSilent(longest));
  }
  unsetenv("ALSA_CONFIG_PATH");
  EXPECT_EQ(countEntriesWith("silent: "), 1);
}

TEST_F(BrokenSound, AFailureThatIsOverDoesNotKeepTheNextSoundAway) {
  setDriver("there is no such driver");
  const auto output = xplMakeSoundOutput();
  output->play(111, false);
  EXPECT_TRUE(SoundWorker::shared()->waitUntilSilent(longest));
  SoundPipe pipe(newPath());
  output->play(111, false);
  pipe.open();
  EXPECT_GE(pipe.readToEnd().size(), soundOf(111).size());
}

// A sound system that takes a sound and then never answers again holds its threads for good, so each of these
// runs in a process of its own. Their exit codes: 0 for success.
class SoundSystemThatHangs : public Audible {
 protected:
  SoundSystemThatHangs() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

  // Gives the player the time to come to the place where it hangs. True where its sound ends instead.
  static bool soundEndsSoon() { return SoundWorker::shared()->waitUntilSilent(milliseconds(200)); }
  // True where the output takes further wishes, and its end, without waiting for the sound system.
  static bool isLeftAtOnce(std::unique_ptr<xpliSoundOutput> output) {
    const auto start = Clock::now();
    output->stop();
    output->play(111, false);
    const auto asked = Clock::now() - start;
    output.reset();
    return asked < milliseconds(50) && Clock::now() - start < milliseconds(300);
  }
  // Ends the process without the usual flushing of its files, one of which is the pipe that hangs.
  void endWith(bool isGood) {
    std::filesystem::remove_all(root());
    std::_Exit(isGood ? 0 : 1);
  }
};

TEST_F(SoundSystemThatHangs, WhileItIsOpenedHoldsNobodyUp) {
  const auto run = [this] {
    const SoundPipe nobodyReads(newPath());
    auto output = xplMakeSoundOutput();
    output->play(112, true);
    endWith(!soundEndsSoon() && isLeftAtOnce(std::move(output)));
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(SoundSystemThatHangs, WhileItPlaysHoldsNobodyUp) {
  const auto run = [this] {
    SoundPipe pipe(newPath());
    auto output = xplMakeSoundOutput();
    output->play(112, true);
    pipe.open();
    pipe.read(1000);  // and nothing more
    endWith(!soundEndsSoon() && isLeftAtOnce(std::move(output)));
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(SoundSystemThatHangs, LeavesTheRestOfTheRunSilent) {
  const auto run = [this] {
    SoundPipe pipe(newPath());
    auto first = xplMakeSoundOutput();
    first->play(112, true);
    pipe.open();
    pipe.read(1000);
    soundEndsSoon();
    first.reset();
    const auto next = xplMakeSoundOutput();
    next->play(111, false);
    const bool isSilent = SoundWorker::shared()->waitUntilSilent(longest);
    next->stop();
    endWith(isSilent && countEntries("silent: the sound system does not answer") == 1);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

}  // namespace
