// Tests what the program reads from its command line.
#include <gtest/gtest.h>

#include "host/linux/commandLine.h"

namespace {

using Mode = HostRequest::Mode;
using Words = std::vector<std::string>;

HostRequest requestOf(const Words& words, const std::optional<std::string>& screenSaverWindow = {}) {
  const CommandLine line = parseCommandLine(words, screenSaverWindow);
  const auto* error = std::get_if<CommandLineError>(&line);
  EXPECT_EQ(error, nullptr) << (error ? error->text : "");
  return error ? HostRequest{.mode = Mode::help, .window = {}} : std::get<HostRequest>(line);
}

CommandLineError errorOf(const Words& words, const std::optional<std::string>& screenSaverWindow = {}) {
  const CommandLine line = parseCommandLine(words, screenSaverWindow);
  const auto* error = std::get_if<CommandLineError>(&line);
  EXPECT_NE(error, nullptr);
  return error ? *error : CommandLineError{};
}

TEST(CommandLine, NothingIsTheFullRun) {
  EXPECT_EQ(requestOf({}).mode, Mode::fullRun);
  EXPECT_EQ(requestOf({}, "77").mode, Mode::fullRun);
  EXPECT_FALSE(requestOf({}, "77").window);
}

TEST(CommandLine, SAndFullscreenAreTheFullRun) {
  for (const char* word : {"/s", "--fullscreen", "-fullscreen"}) {
    EXPECT_EQ(requestOf({word}, "77").mode, Mode::fullRun) << word;
  }
}

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

TEST(CommandLine, TheKindOfDisplayIsLeftOpenOrNamed) {
  using Display = HostRequest::Display;
  EXPECT_EQ(requestOf({}).display, Display::automatic);
  EXPECT_EQ(requestOf({"--x11"}).display, Display::x11);
  EXPECT_EQ(requestOf({"-wayland"}).display, Display::wayland);
  EXPECT_EQ(requestOf({"--wayland", "--x11"}).display, Display::x11);
}

TEST(CommandLine, TheKindOfDisplayGoesWithAModeWhereverItStands) {
  for (const Words& words : {Words{"--wayland", "--window", "8x9"}, Words{"--window", "8x9", "--wayland"}}) {
    EXPECT_EQ(requestOf(words).mode, Mode::ordinaryWindow);
    EXPECT_EQ(requestOf(words).width, 8);
    EXPECT_EQ(requestOf(words).display, HostRequest::Display::wayland);
  }
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

TEST(CommandLine, TheLastModeCounts) {
  EXPECT_EQ(requestOf({"/s", "--window"}).mode, Mode::ordinaryWindow);
  EXPECT_EQ(requestOf({"--window", "/c"}).mode, Mode::configuration);
  EXPECT_EQ(requestOf({"/p", "5", "/s"}).mode, Mode::fullRun);
  EXPECT_FALSE(requestOf({"/p", "5", "/s"}).window);
}

TEST(CommandLine, CAndConfigureAreTheConfiguration) {
  for (const char* word : {"/c", "--configure", "-configure"}) {
    EXPECT_EQ(requestOf({word}).mode, Mode::configuration) << word;
  }
}

TEST(CommandLine, XScreenSaverIsInstalledIntoAndTakenOutOf) {
  for (const char* word : {"--install-xscreensaver", "-install-xscreensaver"}) {
    EXPECT_EQ(requestOf({word}).mode, Mode::installXScreenSaver) << word;
  }
  EXPECT_EQ(requestOf({"--uninstall-xscreensaver"}).mode, Mode::uninstallXScreenSaver);
  EXPECT_EQ(errorOf({"--install-xscreensaver=1"}).text, "unknown option '--install-xscreensaver=1'");
}

TEST(CommandLine, DoctorLooksAtTheSystem) {
  EXPECT_EQ(requestOf({"--doctor"}).mode, Mode::doctor);
  EXPECT_EQ(requestOf({"-doctor"}).mode, Mode::doctor);
  EXPECT_EQ(errorOf({"--doctor=1"}).text, "unknown option '--doctor=1'");
}

TEST(CommandLine, StatisticsGoWithEveryRunWhereverTheOptionStands) {
  EXPECT_FALSE(requestOf({"/s"}).hasStatistics);
  for (const Words& words :
       {Words{"--stats"}, Words{"-stats"}, Words{"--stats", "--doctor", "/s"}, Words{"/s", "--stats"},
        Words{"--stats", "--window", "8x8"}, Words{"--root", "--stats"}, Words{"--stats", "/p", "5"},
        Words{"/p", "5", "--stats"}}) {
    EXPECT_TRUE(requestOf(words).hasStatistics) << words[0];
  }
  EXPECT_EQ(requestOf({"--stats"}).mode, Mode::fullRun);
  EXPECT_EQ(requestOf({"/p", "5", "--stats"}).window, 5U);
  EXPECT_EQ(errorOf({"--stats=1"}).text, "unknown option '--stats=1'");
}

TEST(CommandLine, HelpAndVersionWinOverEverything) {
  for (const char* word : {"--help", "-help"}) {
    EXPECT_EQ(requestOf({"/s", word, "--root"}).mode, Mode::help) << word;
  }
  EXPECT_EQ(requestOf({"--version"}).mode, Mode::version);
}

TEST(CommandLine, WhatItDoesNotKnowNeedsTheUsage) {
  for (const char* word : {"--nonsense", "-x", "-", "--", "---root", "--root=1", "--help=1", "--Root"}) {
    const auto error = errorOf({word});
    EXPECT_EQ(error.text, std::string("unknown option '") + word + "'");
    EXPECT_TRUE(error.needsUsage);
  }
  for (const char* word : {"/S", "/x", "s", "", "/p:5", "window"}) {
    EXPECT_EQ(errorOf({word}).text, std::string("unknown argument '") + word + "'");
  }
}

TEST(CommandLine, TheFirstErrorIsTold) {
  EXPECT_EQ(errorOf({"--one", "--two"}).text, "unknown option '--one'");
}

TEST(CommandLine, TheApplicationObjectGetsTheCanonicalForm) {
  const auto formOf = [](const Words& words) {
    return canonicalArguments("lunaria", requestOf(words, "77"));
  };
  EXPECT_EQ(formOf({}), (Words{"lunaria", "/s"}));
  EXPECT_EQ(formOf({"--root"}), (Words{"lunaria", "/s"}));
  EXPECT_EQ(formOf({"--window", "8x8"}), (Words{"lunaria", "/s"}));
  EXPECT_EQ(formOf({"--preview", "0x10"}), (Words{"lunaria", "/p", "16"}));
  EXPECT_EQ(formOf({"--configure"}), (Words{"lunaria", "/c"}));
}

TEST(CommandLine, TheUsageNamesEveryOption) {
  const std::string usage = usageText();
  for (const char* option :
       {"/s", "--fullscreen", "--root", "/p ID", "--preview ID", "--window-id ID", "--window [WxH]", "--x11",
        "--wayland", "/c", "--configure", "--install-xscreensaver", "--uninstall-xscreensaver", "--stats",
        "--help", "--version"}) {
    EXPECT_NE(usage.find(option), std::string::npos) << option;
  }
  EXPECT_EQ(versionText(), "lunaria 5.4.1\n");
}

}  // namespace
