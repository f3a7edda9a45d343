// Tests what is said where nobody starts screen savers.
#include <gtest/gtest.h>

#include "fakeSystem.h"
#include "host/linux/doctor/checks.h"

namespace {

class NoSaverTest : public testing::Test {
 protected:
  NoSaverTest() { system.running.clear(); }
  // The one finding.
  Finding look() {
    const Findings findings = SaverCheck::look(system);
    EXPECT_EQ(findings.size(), 1U);
    return findings.empty() ? Finding{} : findings.front();
  }
  static constexpr char install[] = "lunaria --install-xscreensaver";
  static constexpr char start[] =
      "mkdir -p ~/.config/autostart; cp /usr/share/xscreensaver/xscreensaver.desktop ~/.config/autostart/; "
      "xscreensaver &";
  FakeSystem system;
};

TEST_F(NoSaverTest, DesktopsThatShowTheirOwnAlone) {
  for (const auto& [variable, name] : {std::pair{"ubuntu:GNOME", "GNOME"}, std::pair{"KDE", "KDE Plasma"},
                                       std::pair{"X-Cinnamon", "Cinnamon"}, std::pair{"XFCE", "Xfce"}}) {
    system.variables["XDG_CURRENT_DESKTOP"] = variable;
    EXPECT_EQ(look(),
              (Finding{std::string(name) + " locks the screen, but shows no screen savers but its own.",
                       "sudo apt install xscreensaver && lunaria --install-xscreensaver"}));
  }
  system.shown.kind = DisplayView::Kind::wayland;
  EXPECT_EQ(look(), (Finding{"Xfce locks the screen, but shows no screen savers but its own.",
                             "log in to an X11 session, and there: sudo apt install xscreensaver && lunaria "
                             "--install-xscreensaver"}));
}

TEST_F(NoSaverTest, AnInstalledXScreenSaverIsToBeStartedOnDesktopsThatShowTheirOwnAlone) {
  system.installed["xscreensaver"] = true;
  for (const auto& [variable, name] : {std::pair{"ubuntu:GNOME", "GNOME"}, std::pair{"KDE", "KDE Plasma"},
                                       std::pair{"X-Cinnamon", "Cinnamon"}, std::pair{"XFCE", "Xfce"}}) {
    system.variables["XDG_CURRENT_DESKTOP"] = variable;
    EXPECT_EQ(look(), (Finding{std::string(name) +
                                   " locks the screen, but shows no screen savers but its own; XScreenSaver "
                                   "is installed, but does not run.",
                               start}));
  }
  system.shown.kind = DisplayView::Kind::wayland;
  EXPECT_EQ(look(), (Finding{"Xfce locks the screen, but shows no screen savers but its own.",
                             std::string("log in to an X11 session, and there: ") + start}));
}

TEST_F(NoSaverTest, AnXScreenSaverThatIsToBeStartedIsToShowLunaria) {
  system.variables.clear();
  system.installed["xscreensaver"] = true;
  system.contents.clear();
  EXPECT_EQ(look().cure, std::string(install) + "; " + start);
}

TEST_F(NoSaverTest, AnXScreenSaverWithoutAnEntryForSessionsIsStartedByHand) {
  system.variables.clear();
  system.installed["xscreensaver"] = true;
  system.files["/usr/share/xscreensaver/xscreensaver.desktop"] = {};
  EXPECT_EQ(look().cure, "xscreensaver --no-splash &   (and let your session start that at login)");
}

TEST_F(NoSaverTest, NobodyStartsScreenSavers) {
  system.variables.clear();
  EXPECT_EQ(look(), (Finding{"Nothing starts a screen saver here.",
                             "sudo apt install xscreensaver && lunaria --install-xscreensaver"}));
  system.installed["xscreensaver"] = true;
  EXPECT_EQ(
      look(),
      (Finding{"XScreenSaver is installed, but does not run: nothing starts a screen saver here.", start}));
  system.shown.kind = DisplayView::Kind::wayland;
  EXPECT_EQ(look(), (Finding{"Nothing starts a screen saver here.",
                             "install swayidle; at login start: swayidle -w timeout 600 'lunaria &'"}));
}

}  // namespace
