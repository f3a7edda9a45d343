// Tests what is read from the settings of those who start screen savers.
#include <gtest/gtest.h>

#include "host/linux/doctor/saverSettings.h"

namespace {

using Mode = XScreenSaverSettings::Mode;

TEST(MinutesOf, ATimeAreItsMinutesRoundedUp) {
  EXPECT_EQ(minutesOf("0:10:00"), 10);
  EXPECT_EQ(minutesOf("1:00:01"), 61);
  EXPECT_EQ(minutesOf("5:00"), 5);
  EXPECT_EQ(minutesOf("90"), 2);
  EXPECT_EQ(minutesOf("0:00:00"), 0);
}

TEST(MinutesOf, WhatIsNoTimeAreNone) {
  for (const char* text : {"", "abc", "1:x", "-5", "1:-1", "99999999999", "900000:900000:900000:0"}) {
    EXPECT_EQ(minutesOf(text), std::nullopt) << text;
  }
}

TEST(ReadXScreenSaver, AnEmptyFileHasItsDefaults) {
  const auto settings = readXScreenSaver("");
  EXPECT_EQ(settings.mode, Mode::random);
  EXPECT_EQ(settings.minutes, 10);
  EXPECT_EQ(settings.chosen, "");
  EXPECT_FALSE(settings.isListed);
  EXPECT_EQ(settings.listed, 0);
}

TEST(ReadXScreenSaver, TellsWhichOneIsChosen) {
  const std::string programs =
      "programs: one -root \\n\\\n- two --root \\n\\\n /usr/bin/lunaria --root \\n\n";
  const auto settings = readXScreenSaver("timeout:\t0:03:00\nmode:\tone\nselected:\t2\n" + programs);
  EXPECT_EQ(settings.mode, Mode::one);
  EXPECT_EQ(settings.minutes, 3);
  EXPECT_EQ(settings.chosen, "lunaria");
  EXPECT_TRUE(settings.isListed);
  EXPECT_EQ(settings.listed, 2);
  EXPECT_EQ(readXScreenSaver("mode: one\nselected: 0\n" + programs).chosen, "one");
}

TEST(ReadXScreenSaver, AChoiceOutsideTheListIsNone) {
  for (const char* selected : {"1", "-1", "x", ""}) {
    const auto settings = readXScreenSaver(std::string("mode: one\nselected: ") + selected +
                                           "\nprograms: lunaria --root \\n\n");
    EXPECT_EQ(settings.chosen, "") << selected;
  }
}

TEST(ReadXScreenSaver, ASwitchedOffEntryIsNotListed) {
  EXPECT_FALSE(readXScreenSaver("programs: - lunaria --root \\n\n").isListed);
}

TEST(ReadXScreenSaver, TellsTheProgramThatItShows) {
  const std::string programs =
      "programs: - /old/lunaria --root \\n\\\n /a/lunaria --root \\n\\\n /b/lunaria --root \\n\n";
  EXPECT_EQ(readXScreenSaver("mode: random\nselected: 2\n" + programs).program, "/a/lunaria");
  EXPECT_EQ(readXScreenSaver("mode: one\nselected: 2\n" + programs).program, "/b/lunaria");
  EXPECT_EQ(readXScreenSaver("mode: one\nselected: 0\nprograms: stars \\n\n").program, "");
}

TEST(ReadXScreenSaver, KnowsTheModes) {
  EXPECT_EQ(readXScreenSaver("mode: off\n").mode, Mode::off);
  EXPECT_EQ(readXScreenSaver("mode: blank\n").mode, Mode::blank);
  EXPECT_EQ(readXScreenSaver("mode: random-same\n").mode, Mode::random);
}

TEST(ReadXScreenSaver, ATimeOfNothingIsAMinute) {
  EXPECT_EQ(readXScreenSaver("timeout: 0:00:00\n").minutes, 1);
}

TEST(MinutesUntilLunaria, AreThoseOfTheTimeoutBeforeIt) {
  EXPECT_EQ(minutesUntilLunaria("swayidle -w timeout 300 lunaria"), 5);
  EXPECT_EQ(minutesUntilLunaria("swayidle timeout 60 other timeout 600 'lunaria --window' timeout 900 x"),
            10);
  EXPECT_EQ(minutesUntilLunaria("# lunaria\nexec swayidle -w timeout 120 /usr/bin/lunaria\n"), 2);
}

TEST(MinutesUntilLunaria, AreOpenWhereNoTimeIsNamed) {
  EXPECT_EQ(minutesUntilLunaria("xss-lock -- lunaria"), 0);
  EXPECT_EQ(minutesUntilLunaria("xautolock -locker lunaria"), 0);
  EXPECT_EQ(minutesUntilLunaria("listener {\n  on-timeout = lunaria\n}\n"), 0);
}

TEST(MinutesUntilLunaria, AreXautolocksMinutes) {
  EXPECT_EQ(minutesUntilLunaria("xautolock -time 10 -locker lunaria"), 10);
  EXPECT_EQ(minutesUntilLunaria("xautolock -locker lunaria -time 5 "), 5);
  EXPECT_EQ(minutesUntilLunaria("xautolock -time 5 -locker slock"), std::nullopt);
}

TEST(MinutesUntilLunaria, AreThoseOfHypridlesListener) {
  EXPECT_EQ(minutesUntilLunaria("listener {\n    timeout = 600\n    on-timeout = lunaria\n}\n"), 10);
  EXPECT_EQ(minutesUntilLunaria("listener{\n\ton-timeout=lunaria\n\ttimeout=61 # a minute\n} # end\n"), 2);
}

TEST(MinutesUntilLunaria, AreNotThoseOfHypridlesOtherListeners) {
  const std::string dim = "listener {\n  timeout = 120\n  on-timeout = dim\n  on-resume = undim\n}\n";
  const std::string ours = "listener {\n  timeout = 300\n  on-timeout = lunaria\n}\n";
  const std::string late = "listener {\n  timeout = 900\n  on-timeout = lunaria --window\n}\n";
  EXPECT_EQ(minutesUntilLunaria(dim + ours), 5);
  EXPECT_EQ(minutesUntilLunaria(ours + dim), 5);
  EXPECT_EQ(minutesUntilLunaria(ours + late), 5) << "the first one brings it up";
  EXPECT_EQ(minutesUntilLunaria(dim), std::nullopt);
  EXPECT_EQ(minutesUntilLunaria("general {\n  lock_cmd = lunaria\n}\n" + dim), 0);
}

TEST(MinutesUntilLunaria, AreNoneWhereHypridleOnlyEndsIt) {
  EXPECT_EQ(
      minutesUntilLunaria("listener {\n timeout = 300\n on-timeout = dim\n on-resume = kill lunaria\n}\n"),
      std::nullopt);
  EXPECT_EQ(minutesUntilLunaria("listener {\n timeout = 300\n # on-timeout = lunaria\n}\n"), std::nullopt);
}

TEST(MinutesUntilLunaria, AreFoundBehindAColour) {
  EXPECT_EQ(minutesUntilLunaria("swayidle timeout 60 'dim #000' timeout 600 lunaria"), 10);
}

TEST(MinutesUntilLunaria, AreNoneWhereItIsNotNamed) {
  EXPECT_EQ(minutesUntilLunaria(""), std::nullopt);
  EXPECT_EQ(minutesUntilLunaria("swayidle timeout 300 swaylock"), std::nullopt);
  EXPECT_EQ(minutesUntilLunaria("  # timeout 300 lunaria"), std::nullopt);
}

}  // namespace
