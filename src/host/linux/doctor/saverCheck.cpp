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

constexpr char swayidleCure[] = "install swayidle; at login start: swayidle -w timeout 600 'lunaria &'";
constexpr char x11Session[] = "log in to an X11 session";

std::string inSmallLetters(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return text;
}

// Whether XDG_CURRENT_DESKTOP, a list with colons, has this name.
bool isDesktop(const std::string& list, const std::string& name) {
  return (":" + inSmallLetters(list) + ":").find(":" + name + ":") != std::string::npos;
}

bool isWayland(SystemView& system) {
  return system.display().kind == DisplayView::Kind::wayland;
}

// The desktop's name where it is one that shows no savers but its own; else nullptr.
const char* ownDesktopOf(SystemView& system) {
  const std::string desktop = system.environment("XDG_CURRENT_DESKTOP").value_or("");
  const auto* const own =
      std::find_if(ownDesktops.begin(), ownDesktops.end(),
                   [&](const OwnDesktop& candidate) { return isDesktop(desktop, candidate.name); });
  return own != ownDesktops.end() ? own->shown : nullptr;
}

// xss-lock waits for the X server, which counts the time.
Finding startsAfterServersTime(const std::string& name, const std::optional<int>& seconds) {
  const std::string text = name + " runs here and starts Lunaria";
  if (seconds == 0) {
    return {text + ", but the display is set never to say that nobody is there.",
            "now and at each login: xset s 600 0"};
  }
  return {text + (seconds ? saverTexts::after(roundedUpToMinutes(*seconds)) : "") + ".", ""};
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
  const std::string name = program.name;
  if (!minutes) {
    return Finding{name + " runs here, but does not start Lunaria.", program.cure};
  }
  if (name == "xss-lock") {
    return startsAfterServersTime(name, system.display().saverSeconds);
  }
  return Finding{
      name + " runs here and starts Lunaria" + (*minutes > 0 ? saverTexts::after(*minutes) : "") + ".", ""};
}

// What XScreenSaver does with Lunaria where it runs on X11.
Finding lookAtXScreenSaver(SystemView& system) {
  const auto text = system.contentOf(system.homeFolder() + "/.xscreensaver");
  const XScreenSaverSettings settings = readXScreenSaver(text.value_or(""));
  const Finding shown = saverTexts::ofXScreenSaver(settings);
  return shown.isProblem() || system.canXScreenSaverStart(settings.program)
             ? shown
             : saverTexts::ofMissingProgram(settings.program);
}

// The commands that bring Lunaria up through XScreenSaver, which does not run yet.
std::string xscreensaverCure(SystemView& system) {
  if (!system.isInstalled("xscreensaver")) {
    return "sudo apt install xscreensaver && lunaria --install-xscreensaver";
  }
  const std::string choose = lookAtXScreenSaver(system).isProblem() ? "lunaria --install-xscreensaver; " : "";
  const std::string entry = "/usr/share/xscreensaver/xscreensaver.desktop";
  if (system.file(entry).kind != FileView::Kind::file) {
    return choose + "xscreensaver --no-splash &   (and let your session start that at login)";
  }
  return choose + "mkdir -p ~/.config/autostart; cp " + entry + " ~/.config/autostart/; xscreensaver &";
}

Finding xscreensaverOnWayland(SystemView& system) {
  const std::string text = "XScreenSaver runs here, but cannot cover the screen in a Wayland session.";
  if (ownDesktopOf(system) == nullptr) {
    return {text, swayidleCure};
  }
  return {text, std::string(x11Session) + (lookAtXScreenSaver(system).isProblem()
                                               ? ", and there: lunaria --install-xscreensaver"
                                               : ": XScreenSaver shows Lunaria there")};
}

Finding nobody(SystemView& system) {
  const char* own = ownDesktopOf(system);
  if (own != nullptr) {
    const bool isIdle = system.isInstalled("xscreensaver") && !isWayland(system);
    return {std::string(own) + " locks the screen, but shows no screen savers but its own" +
                (isIdle ? "; XScreenSaver is installed, but does not run." : "."),
            (isWayland(system) ? std::string(x11Session) + ", and there: " : "") + xscreensaverCure(system)};
  }
  if (isWayland(system)) {
    return {"Nothing starts a screen saver here.", swayidleCure};
  }
  return {system.isInstalled("xscreensaver")
              ? "XScreenSaver is installed, but does not run: nothing starts a screen saver here."
              : "Nothing starts a screen saver here.",
          xscreensaverCure(system)};
}

}  // namespace

Findings SaverCheck::look(SystemView& system) {
  Findings findings;
  const bool hasXScreenSaver = system.runningProgram("xscreensaver").has_value();
  if (hasXScreenSaver && !isWayland(system)) {
    findings.push_back(lookAtXScreenSaver(system));
  }
  if (system.runningProgram("mate-screensaver")) {
    findings.push_back(lookAtMate(system));
  }
  for (const IdleProgram& program : idlePrograms) {
    if (const auto finding = lookAtIdleProgram(system, program)) {
      findings.push_back(*finding);
    }
  }
  // On Wayland an XScreenSaver is nobody, and harmless where another starts Lunaria.
  if (findings.empty()) {
    findings.push_back(hasXScreenSaver ? xscreensaverOnWayland(system) : nobody(system));
  }
  return findings;
}
