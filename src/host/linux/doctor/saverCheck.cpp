// Looks for whoever starts screen savers here.
#include <algorithm>
#include <array>
#include <cctype>

#include "host/linux/doctor/checks.h"
#include "host/linux/doctor/mateSaver.h"
#include "host/linux/doctor/saverSettings.h"
#include "host/linux/doctor/saverTexts.h"

namespace {

// Desktops that lock the screen and show no savers but their own, as their names appear in
// XDG_CURRENT_DESKTOP, and as people call them.
struct OwnDesktop {
  const char* name;
  const char* shown;
};
constexpr std::array ownDesktops{OwnDesktop{"gnome", "GNOME"},         OwnDesktop{"kde", "KDE Plasma"},
                                 OwnDesktop{"x-cinnamon", "Cinnamon"}, OwnDesktop{"cinnamon", "Cinnamon"},
                                 OwnDesktop{"xfce", "Xfce"},           OwnDesktop{"unity", "Unity"},
                                 OwnDesktop{"budgie", "Budgie"}};

// Programs that start others when nobody is there, and where their settings lie in ~/.config.
struct IdleProgram {
  const char* name;
  std::array<const char*, 2> settings;
  const char* cure;
};
constexpr std::array idlePrograms{
    IdleProgram{"swayidle",
                {"swayidle/config", "sway/config"},
                "let swayidle start it: swayidle -w timeout 600 'lunaria &'"},
    IdleProgram{"hypridle",
                {"hypr/hypridle.conf", ""},
                "in hypridle.conf, a listener: timeout = 600, on-timeout = lunaria"},
    IdleProgram{"xss-lock", {"", ""}, "let xss-lock start it: xset s 600 0; xss-lock -- lunaria &"},
    IdleProgram{"xautolock", {"", ""}, "let xautolock start it: xautolock -time 10 -locker lunaria"},
};

std::string inSmallLetters(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return text;
}

// Whether XDG_CURRENT_DESKTOP, a list with colons, has this name.
bool isDesktop(const std::string& list, const std::string& name) {
  return (":" + inSmallLetters(list) + ":").find(":" + name + ":") != std::string::npos;
}

std::optional<Finding> lookAtIdleProgram(SystemView& system, const IdleProgram& program) {
  const auto words = system.runningProgram(program.name);
  if (!words) {
    return std::nullopt;
  }
  std::optional<int> minutes = minutesUntilLunaria(*words);
  const std::string folder = system.environment("XDG_CONFIG_HOME").value_or(system.homeFolder() + "/.config");
  for (const char* name : program.settings) {
    if (!minutes && *name != '\0') {
      minutes = minutesUntilLunaria(system.contentOf(folder + "/" + name).value_or(""));
    }
  }
  if (!minutes) {
    return Finding{std::string(program.name) + " runs here, but does not start Lunaria.", program.cure};
  }
  return Finding{std::string(program.name) + " runs here and starts Lunaria" +
                     (*minutes > 0 ? saverTexts::after(*minutes) : "") + ".",
                 ""};
}

Finding nobodyOn(SystemView& system, const std::string& desktop) {
  const bool isWayland = system.display().kind == DisplayView::Kind::wayland;
  for (const OwnDesktop& own : ownDesktops) {
    if (isDesktop(desktop, own.name)) {
      return {std::string(own.shown) + " locks the screen, but shows no screen savers but its own.",
              isWayland ? "log in to an X11 session, and there: sudo apt install xscreensaver"
                        : "sudo apt install xscreensaver && lunaria --install-xscreensaver"};
    }
  }
  if (system.isInstalled("xscreensaver") && !isWayland) {
    return {"XScreenSaver is installed, but does not run: nothing starts a screen saver here.",
            "let your session start it at login: xscreensaver --no-splash"};
  }
  return {"Nothing starts a screen saver here.",
          isWayland ? "install swayidle; at login start: swayidle -w timeout 600 'lunaria &'"
                    : "sudo apt install xscreensaver && lunaria --install-xscreensaver"};
}

}  // namespace

Findings SaverCheck::look(SystemView& system) {
  Findings findings;
  if (system.runningProgram("xscreensaver")) {
    const auto text = system.contentOf(system.homeFolder() + "/.xscreensaver");
    findings.push_back(saverTexts::ofXScreenSaver(readXScreenSaver(text.value_or(""))));
  }
  if (system.runningProgram("mate-screensaver")) {
    findings.push_back(lookAtMate(system));
  }
  for (const IdleProgram& program : idlePrograms) {
    if (const auto finding = lookAtIdleProgram(system, program)) {
      findings.push_back(*finding);
    }
  }
  if (findings.empty()) {
    findings.push_back(nobodyOn(system, system.environment("XDG_CURRENT_DESKTOP").value_or("")));
  }
  return findings;
}
