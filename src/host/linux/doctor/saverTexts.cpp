// Words for the screen savers' settings.
#include "host/linux/doctor/saverTexts.h"

namespace saverTexts {

namespace {

constexpr char xscreensaverCure[] = "lunaria --install-xscreensaver";

Finding ofRandom(const XScreenSaverSettings& settings) {
  if (!settings.isListed) {
    return {"XScreenSaver runs here, but Lunaria is not among the savers that it shows.", xscreensaverCure};
  }
  if (settings.listed == 1) {
    return {"XScreenSaver runs here and shows Lunaria" + after(settings.minutes) + ".", ""};
  }
  return {"XScreenSaver runs here and shows one of its " + std::to_string(settings.listed) + " savers" +
              after(settings.minutes) +
              ", by chance; Lunaria is one of them. To see it alone: " + xscreensaverCure,
          ""};
}

}  // namespace

std::string after(int minutes) {
  return minutes == 1 ? " after 1 minute" : " after " + std::to_string(minutes) + " minutes";
}

Finding ofXScreenSaver(const XScreenSaverSettings& settings) {
  using Mode = XScreenSaverSettings::Mode;
  switch (settings.mode) {
    case Mode::off:
      return {"XScreenSaver runs here, but is switched off in its settings.", xscreensaverCure};
    case Mode::blank:
      return {"XScreenSaver runs here, but is set to leave the screen black.", xscreensaverCure};
    case Mode::random:
      return ofRandom(settings);
    case Mode::one:
      break;
  }
  if (settings.chosen == "lunaria") {
    return {"XScreenSaver runs here and shows Lunaria" + after(settings.minutes) + ".", ""};
  }
  return {"XScreenSaver runs here, but shows " +
              (settings.chosen.empty() ? std::string("another saver") : "\"" + settings.chosen + "\"") +
              " and not Lunaria.",
          xscreensaverCure};
}

Finding ofMissingProgram(const std::string& program) {
  return {
      "XScreenSaver runs here, but cannot show Lunaria: its list names a program that is not there or "
      "cannot be started:\n" +
          program,
      xscreensaverCure};
}

}  // namespace saverTexts
