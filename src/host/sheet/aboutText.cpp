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
         "</a>.\n\nWhat is recorded: a full run of more than 23 seconds" + n +
         "adds one line (times, version, build) to a file;" + n + "nothing leaves the machine. The setting" +
         n + "sisableTelemetry=yes stops that. Write it so, as a" + n + "line of its own, into the file \n" +
         settingsFile;
}
