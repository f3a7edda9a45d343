// Asks MATE for its screen saver's settings.
#include "host/linux/doctor/mateSaver.h"

#include "host/linux/doctor/saverSettings.h"
#include "host/linux/doctor/saverTexts.h"

namespace {

constexpr char screenSaver[] = "org.mate.screensaver";
// The name under which the package puts Lunaria into MATE's list.
constexpr char ourTheme[] = "'screensavers-lunaria'";
constexpr char cure[] = "choose Lunaria in MATE's Control Center, under Screensaver";

}  // namespace

Finding lookAtMate(SystemView& system) {
  const auto ask = [&](const char* schema, const char* key) {
    return system.outputOf({"gsettings", "get", schema, key});
  };
  const auto mode = ask(screenSaver, "mode");
  if (!mode) {
    return {
        "MATE's screen saver runs here; which one it shows stands in MATE's Control Center, under "
        "Screensaver.",
        ""};
  }
  if (ask(screenSaver, "idle-activation-enabled") == "false") {
    return {"MATE's screen saver runs here, but does not come up by itself.",
            "gsettings set org.mate.screensaver idle-activation-enabled true"};
  }
  const std::string themes = ask(screenSaver, "themes").value_or("");
  const bool isChosen = themes.find(ourTheme) != std::string::npos;
  if (!isChosen || (*mode != "'single'" && *mode != "'random'")) {
    return {"MATE's screen saver runs here, but does not show Lunaria.", cure};
  }
  const auto minutes = minutesOf(ask("org.mate.session", "idle-delay").value_or("") + ":00");
  const std::string when = minutes && *minutes > 0 ? saverTexts::after(*minutes) : "";
  const bool isAlone = themes.find(',') == std::string::npos;
  return {"MATE's screen saver runs here and shows Lunaria" + when +
              (isAlone ? "." : ", among others, by chance."),
          ""};
}
