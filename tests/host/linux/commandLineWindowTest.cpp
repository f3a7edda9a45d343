// Tests which window the program reads from its command line and its environment.
#include "host/linux/commandLineFixture.h"

namespace {

TEST(CommandLine, RootIsTheFullRunInTheNamedWindow) {
  for (const char* word : {"--root", "-root"}) {
    EXPECT_EQ(requestOf({word}, "77").mode, Mode::foreignRun) << word;
    EXPECT_EQ(requestOf({word}, "77").window, 77U) << word;
  }
  EXPECT_EQ(requestOf({"--root"}, "0x2a").window, 42U);
}

TEST(CommandLine, RootWithoutAWindowIsTheRootWindow) {
  EXPECT_EQ(requestOf({"--root"}).mode, Mode::foreignRun);
  EXPECT_FALSE(requestOf({"--root"}).window);
}

TEST(CommandLine, RootRefusesAWindowThatIsNoNumber) {
  for (const char* value : {"", "abc", "0x", "12x", " 7", "-1", "99999999999"}) {
    const auto error = errorOf({"--root"}, value);
    EXPECT_EQ(error.text, std::string("XSCREENSAVER_WINDOW is '") + value +
                              "', which is not a window id: unset it, or set it to a number");
    EXPECT_FALSE(error.needsUsage);
  }
}

TEST(CommandLine, ThePreviewTakesItsWindowInEveryForm) {
  for (const Words& words :
       {Words{"/p", "65750"}, Words{"--preview", "65750"}, Words{"-preview", "65750"},
        Words{"--window-id", "65750"}, Words{"-window-id", "65750"}, Words{"--window-id", "0x100D6"},
        Words{"--window-id", "0X100d6"}, Words{"--window-id=65750"}, Words{"--preview=0x100d6"}}) {
    const auto request = requestOf(words);
    EXPECT_EQ(request.mode, Mode::preview) << words[0];
    EXPECT_EQ(request.window, 65750U) << words[0];
  }
}

TEST(CommandLine, AWindowsIdReachesToTheLastOne) {
  EXPECT_EQ(requestOf({"/p", "4294967295"}).window, 4294967295U);
  EXPECT_EQ(requestOf({"/p", "0"}).window, 0U);
}

TEST(CommandLine, AWindowIdThatIsNoNumberIsRefusedInOneLine) {
  for (const char* value : {"abc", "", "12x", "0x", "0xg", "-5", "+5", "4294967296", "1.5", "--root"}) {
    const auto error = errorOf({"--window-id", value});
    EXPECT_EQ(error.text, std::string("'") + value +
                              "' is not a window id: give a decimal number, or a hexadecimal one with 0x");
    EXPECT_FALSE(error.needsUsage);
  }
}

TEST(CommandLine, AMissingWindowIdIsToldWithItsOption) {
  EXPECT_EQ(errorOf({"/p"}).text, "option /p needs a window id after it");
  EXPECT_EQ(errorOf({"--root", "--window-id"}, "7").text, "option --window-id needs a window id after it");
}

TEST(CommandLine, AWindowIdWinsOverRootWhereverItStands) {
  for (const Words& words : {Words{"--root", "--window-id", "5"}, Words{"--window-id", "5", "--root"}}) {
    const auto request = requestOf(words, "77");
    EXPECT_EQ(request.mode, Mode::preview);
    EXPECT_EQ(request.window, 5U);
  }
}

TEST(CommandLine, AWindowIdMakesABadEnvironmentHarmless) {
  EXPECT_EQ(requestOf({"--window-id", "5", "--root"}, "abc").window, 5U);
  EXPECT_EQ(requestOf({"--root", "--window-id", "5"}, "abc").window, 5U);
}

TEST(CommandLine, WindowHasASizeOfItsOwnOrTheNamedOne) {
  for (const Words& words : {Words{"--window"}, Words{"-window"}}) {
    const auto request = requestOf(words);
    EXPECT_EQ(request.mode, Mode::ordinaryWindow);
    EXPECT_EQ(request.width, 960);
    EXPECT_EQ(request.height, 600);
  }
  for (const Words& words : {Words{"--window", "320x200"}, Words{"--window=320x200"}}) {
    const auto request = requestOf(words);
    EXPECT_EQ(request.mode, Mode::ordinaryWindow);
    EXPECT_EQ(request.width, 320);
    EXPECT_EQ(request.height, 200);
  }
}

TEST(CommandLine, WindowSizesReachFromOneTo16384) {
  EXPECT_EQ(requestOf({"--window", "1x16384"}).height, 16384);
  for (const char* size : {"0x5", "5x0", "16385x5", "5x16385", "5", "5x", "5x5x5", "5 x5", "99999999999x5"}) {
    const auto error = errorOf({"--window", size});
    EXPECT_EQ(error.text, std::string("'") + size +
                              "' is not a window size: give WIDTHxHEIGHT in pixels, each from 1 to 16384");
    EXPECT_FALSE(error.needsUsage);
  }
}

TEST(CommandLine, AnOptionAfterWindowIsNotItsSize) {
  EXPECT_EQ(requestOf({"--window", "--fullscreen"}).mode, Mode::fullRun);
}

TEST(CommandLine, WindowsOfOtherProgramsAreNotSoughtOnWayland) {
  for (const Words& words :
       {Words{"--wayland", "--root"}, Words{"--root", "--wayland"}, Words{"--wayland", "/p", "5"}}) {
    const auto error = errorOf(words);
    EXPECT_EQ(error.text, "the windows of other programs are X11's: leave out --wayland, or the window");
    EXPECT_FALSE(error.needsUsage);
  }
  EXPECT_EQ(requestOf({"--root", "--x11"}).mode, Mode::foreignRun);
}

}  // namespace
