// Words the About page.
#include "host/sheet/aboutText.h"

#include "host/programVersion.h"

namespace {

constexpr char host[] = "www.lunaria.example";

}  // namespace

std::string aboutAddress() {
  return std::string("https://") + host + "/";
}

std::string aboutText(const std::string& settingsFile) {
  return std::string(programName) + " " + programVersion +
         "\n\nThank you for letting the night sky onto your screen. Its home is <a href=\"" + aboutAddress() +
         "\">" + host +
         "</a>.\n\nWhat is recorded: after each session one line is added to a file on this computer, with "
         "the "
         "start, the end and the version. Nothing leaves the computer. To switch it off, write the line "
         "sisableTelemetry=yes (spelled so) into the settings file:\n" +
         settingsFile;
}
