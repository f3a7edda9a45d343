// Tests what is said of those who start screen savers.
#include <gtest/gtest.h>

#include "fakeSystem.h"
#include "host/linux/doctor/checks.h"

namespace {

class SaverCheckTest : public testing::Test {
 protected:
  // The one finding.
  Finding look() {
    const Findings findings = SaverCheck::look(system);
    EXPECT_EQ(findings.size(), 1U);
    return findings.empty() ? Finding{} : findings.front();
  }
  void setXScreenSaver(const std::string& text) { system.contents["/home/luna/.xscreensaver"] = text; }
  void setMate(const std::string& mode, const std::string& themes) {
    system.running = {{"mate-screensaver", "mate-screensaver"}};
    system.outputs = {{"gsettings get org.mate.screensaver mode", mode},
                      {"gsettings get org.mate.screensaver themes", themes},
                      {"gsettings get org.mate.screensaver idle-activation-enabled", "true"},
                      {"gsettings get org.mate.session idle-delay", "7"}};
  }
  static constexpr char install[] = "lunaria --install-xscreensaver";
  FakeSystem system;
};

TEST_F(SaverCheckTest, XScreenSaverShowsLunaria) {
  EXPECT_EQ(look(), (Finding{"XScreenSaver runs here and shows Lunaria after 5 minutes.", ""}));
}

TEST_F(SaverCheckTest, XScreenSaverShowsAnother) {
  setXScreenSaver("mode: one\nselected: 0\nprograms: stars --root \\n lunaria --root \\n\n");
  EXPECT_EQ(look(), (Finding{"XScreenSaver runs here, but shows \"stars\" and not Lunaria.", install}));
  setXScreenSaver("mode: one\nprograms: stars --root \\n\n");
  EXPECT_EQ(look(), (Finding{"XScreenSaver runs here, but shows another saver and not Lunaria.", install}));
}

TEST_F(SaverCheckTest, XScreenSaverShowsOneByChance) {
  setXScreenSaver("timeout: 1:00\nmode: random\nprograms: stars --root \\n lunaria --root \\n\n");
  EXPECT_EQ(look(),
            (Finding{"XScreenSaver runs here and shows one of its 2 savers after 1 minute, by chance; "
                     "Lunaria is one of them. To see it alone: lunaria --install-xscreensaver",
                     ""}));
  setXScreenSaver("mode: random\nprograms: lunaria --root \\n\n");
  EXPECT_EQ(look(), (Finding{"XScreenSaver runs here and shows Lunaria after 10 minutes.", ""}));
}

TEST_F(SaverCheckTest, XScreenSaverKnowsNothingOfLunaria) {
  const Finding unknown{"XScreenSaver runs here, but Lunaria is not among the savers that it shows.",
                        install};
  setXScreenSaver("mode: random\nprograms: stars --root \\n - lunaria --root \\n\n");
  EXPECT_EQ(look(), unknown);
  system.contents.clear();
  EXPECT_EQ(look(), unknown) << "without a file";
}

TEST_F(SaverCheckTest, XScreenSaverShowsNothing) {
  setXScreenSaver("mode: off\n");
  EXPECT_EQ(look(), (Finding{"XScreenSaver runs here, but is switched off in its settings.", install}));
  setXScreenSaver("mode: blank\n");
  EXPECT_EQ(look(), (Finding{"XScreenSaver runs here, but is set to leave the screen black.", install}));
}

TEST_F(SaverCheckTest, MateShowsLunaria) {
  setMate("'single'", "['screensavers-lunaria']");
  EXPECT_EQ(look(), (Finding{"MATE's screen saver runs here and shows Lunaria after 7 minutes.", ""}));
  setMate("'random'", "['screensavers-stars', 'screensavers-lunaria']");
  EXPECT_EQ(look(), (Finding{"MATE's screen saver runs here and shows Lunaria after 7 minutes, among others, "
                             "by chance.",
                             ""}));
}

TEST_F(SaverCheckTest, MateShowsAnother) {
  const Finding another{"MATE's screen saver runs here, but does not show Lunaria.",
                        "choose Lunaria in MATE's Control Center, under Screensaver"};
  setMate("'single'", "['screensavers-stars']");
  EXPECT_EQ(look(), another);
  setMate("'blank-only'", "['screensavers-lunaria']");
  EXPECT_EQ(look(), another);
}

TEST_F(SaverCheckTest, MateDoesNotComeUpByItself) {
  setMate("'single'", "['screensavers-lunaria']");
  system.outputs["gsettings get org.mate.screensaver idle-activation-enabled"] = "false";
  EXPECT_EQ(look(), (Finding{"MATE's screen saver runs here, but does not come up by itself.",
                             "gsettings set org.mate.screensaver idle-activation-enabled true"}));
}

TEST_F(SaverCheckTest, MateCannotBeAsked) {
  system.running = {{"mate-screensaver", "mate-screensaver"}};
  EXPECT_FALSE(look().isProblem());
}

TEST_F(SaverCheckTest, IdleProgramsStartLunariaByTheirWordsOrTheirSettings) {
  const Finding well{"swayidle runs here and starts Lunaria after 5 minutes.", ""};
  system.running = {{"swayidle", "swayidle -w timeout 300 lunaria"}};
  EXPECT_EQ(look(), well);
  system.running = {{"swayidle", "swayidle -w timeout 300 lunaria &"}};
  EXPECT_EQ(look(), well);
  system.running = {{"swayidle", "swayidle -w"}};
  system.contents["/home/luna/.config/swayidle/config"] = "timeout 300 lunaria\n";
  EXPECT_EQ(look(), well);
  system.variables["XDG_CONFIG_HOME"] = "/c";
  EXPECT_TRUE(look().isProblem());
  system.contents["/c/sway/config"] = "exec swayidle -w timeout 300 'lunaria &'\n";
  EXPECT_EQ(look(), well);
}

TEST_F(SaverCheckTest, IdleProgramsStartOthers) {
  for (const char* name : {"swayidle", "hypridle", "xss-lock", "xautolock"}) {
    system.running = {{name, name}};
    const Finding finding = look();
    EXPECT_EQ(finding.text, std::string(name) + " runs here, but does not start Lunaria.");
    EXPECT_NE(finding.cure.find("lunaria"), std::string::npos);
  }
}

TEST_F(SaverCheckTest, XScreenSaverCannotCoverAWaylandSession) {
  const std::string text = "XScreenSaver runs here, but cannot cover the screen in a Wayland session.";
  system.shown.kind = DisplayView::Kind::wayland;
  system.variables["XDG_CURRENT_DESKTOP"] = "sway";
  EXPECT_EQ(look(), (Finding{text, "install swayidle; at login start: swayidle -w timeout 600 'lunaria &'"}));
  system.variables["XDG_CURRENT_DESKTOP"] = "GNOME";
  EXPECT_EQ(look(), (Finding{text, "log in to an X11 session: XScreenSaver shows Lunaria there"}));
  system.contents.clear();
  EXPECT_EQ(look(), (Finding{text, std::string("log in to an X11 session, and there: ") + install}));
}

TEST_F(SaverCheckTest, XScreenSaverOnWaylandDoesNotMatterWhereAnotherStartsLunaria) {
  system.shown.kind = DisplayView::Kind::wayland;
  system.running["swayidle"] = "swayidle -w timeout 300 lunaria";
  EXPECT_EQ(look(), (Finding{"swayidle runs here and starts Lunaria after 5 minutes.", ""}));
}

TEST_F(SaverCheckTest, XScreenSaverCannotStartLunaria) {
  const Finding gone{
      "XScreenSaver runs here, but cannot show Lunaria: its list names a program that is not there or cannot "
      "be started:\n/gone/lunaria",
      install};
  system.unstartable = {"/gone/lunaria"};
  setXScreenSaver("mode: one\nselected: 0\nprograms: /gone/lunaria --root \\n\n");
  EXPECT_EQ(look(), gone);
  setXScreenSaver("mode: random\nprograms: stars \\n /gone/lunaria --root \\n\n");
  EXPECT_EQ(look(), gone);
  setXScreenSaver("mode: one\nselected: 1\nprograms: /gone/lunaria --root \\n lunaria --root \\n\n");
  EXPECT_FALSE(look().isProblem());
}

TEST_F(SaverCheckTest, HypridleAndXautolockSayWhen) {
  system.running = {{"hypridle", "hypridle"}};
  system.contents["/home/luna/.config/hypr/hypridle.conf"] =
      "listener {\n    timeout = 600\n    on-timeout = lunaria\n}\n";
  EXPECT_EQ(look(), (Finding{"hypridle runs here and starts Lunaria after 10 minutes.", ""}));
  system.running = {{"xautolock", "xautolock -time 7 -locker lunaria "}};
  EXPECT_EQ(look(), (Finding{"xautolock runs here and starts Lunaria after 7 minutes.", ""}));
}

TEST_F(SaverCheckTest, XssLockWaitsForTheServer) {
  system.running = {{"xss-lock", "xss-lock -- lunaria "}};
  EXPECT_EQ(look(), (Finding{"xss-lock runs here and starts Lunaria.", ""}));
  system.shown.saverSeconds = 601;
  EXPECT_EQ(look(), (Finding{"xss-lock runs here and starts Lunaria after 11 minutes.", ""}));
  system.shown.saverSeconds = 0;
  EXPECT_EQ(look(),
            (Finding{"xss-lock runs here and starts Lunaria, but the display is set never to say that "
                     "nobody is there.",
                     "now and at each login: xset s 600 0"}));
}

}  // namespace
