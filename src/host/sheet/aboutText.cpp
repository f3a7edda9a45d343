// Words the About page.
#include "host/sheet/aboutText.h"

#include "host/programVersion.h"

namespace {

constexpr char host[] = "www.lunaria.example";

}  // namespace

std::string aboutAddress() {
  return std::string("https://") + host + "/";
}

std::string aboutText(const std::string& settingsFile, const std::string& lineBreak) {
  const std::string& n = lineBreak;
  return std::string(programName) + " " + programVersion +
         "\n\nThank you for letting the night sky onto your" + n + "screen. Its home is <a>" + host +
         "</a>.\n\nWhat is recorded: after each session one line is" + n +
         "added to a file on this computer, with the start," + n +
         "the end and the version. Nothing leaves the" + n + "computer. To switch it off, write the line" +
         n + "sisableTelemetry=yes (spelled so) into the file\n" + settingsFile;
}
