// Tests which mode the program reads from its command line, and what it refuses.
#include "host/linux/commandLineFixture.h"

namespace {

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
