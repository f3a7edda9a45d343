// Looks at environment, files and fonts.
#include "host/linux/doctor/realSystem.h"

#include <cstdlib>
#include <sstream>

#include <sys/stat.h>
#include <unistd.h>

#include "host/linux/doctor/boundedChild.h"
#include "host/linux/doctor/lookAtDisplay.h"
#include "host/linux/xscreensaver/saverPrograms.h"
#include "services/telemetryController.h"
#include "support/fileSystem.h"

namespace {

constexpr int commandTime = 3000;  // milliseconds

// The folder that holds a file which does not exist yet, or the nearest one above it that does.
std::string nearestFolder(const std::string& path) {
  std::string folder = xplFileSystemMini::folderOf(path);
  while (!folder.empty() && !xplFileSystemMini::folderExists(folder)) {
    folder = xplFileSystemMini::folderOf(folder);
  }
  return folder.empty() ? "/" : folder;
}

std::string below(const std::string& folder, const char* name) {
  return folder.empty() ? "" : xplFileSystemMini::joinPath(folder, name);
}

}  // namespace

std::optional<std::string> RealSystem::environment(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  return value != nullptr && *value != '\0' ? std::optional<std::string>(value) : std::nullopt;
}

DisplayView RealSystem::display() {
  if (!m_display) {
    m_display = lookAtDisplay();
  }
  return *m_display;
}

bool RealSystem::isInstalled(const std::string& program) {
  const auto canRun = [](const std::string& path) {
    return xplFileSystemMini::fileExists(path) && ::access(path.c_str(), X_OK) == 0;
  };
  bool isFound = canRun(xplFileSystemMini::joinPath(xplFileSystemMini::applicationFolder(), program));
  std::istringstream folders(environment("PATH").value_or(""));
  for (std::string folder; !isFound && std::getline(folders, folder, ':');) {
    isFound = canRun(xplFileSystemMini::joinPath(folder, program));
  }
  return isFound;
}

bool RealSystem::canXScreenSaverStart(const std::string& program) {
  return xscreensaver::canStart(program);
}

std::optional<std::string> RealSystem::outputOf(const std::vector<std::string>& command) {
  auto text = runBounded(commandTime, command);
  if (text && !text->empty() && text->back() == '\n') {
    text->pop_back();
  }
  return text;
}

FileView RealSystem::file(const std::string& path) {
  struct stat facts {};
  if (::stat(path.c_str(), &facts) != 0) {
    const bool canBeMade = ::access(nearestFolder(path).c_str(), W_OK | X_OK) == 0;
    return {.kind = FileView::Kind::missing, .canBeRead = false, .canBeWritten = canBeMade};
  }
  return {.kind = S_ISREG(facts.st_mode) ? FileView::Kind::file : FileView::Kind::other,
          .canBeRead = ::access(path.c_str(), R_OK) == 0,
          .canBeWritten = ::access(path.c_str(), W_OK) == 0};
}

std::string RealSystem::homeFolder() {
  return xplFileSystemMini::getFolder_UserHome();
}

// The names are those that the parts of the program have for their files.
OwnFiles RealSystem::ownFiles() {
  const std::string userFolder = below(xplFileSystemMini::getFolder_UserData(), "Lunaria software");
  return {.settings = below(userFolder, "Lunaria screensaver.ini"),
          .quotes = below(userFolder, "userQuotes.txt"),
          .usage = below(cTelemetryController::cacheFolder(), "usage.txt"),
          .log = below(xplFileSystemMini::getFolder_Temporary(), "Lunaria.xplLog.txt")};
}

FontView RealSystem::fontFor(const std::string& face) {
  const FontRequest request{face, false};
  const auto file = m_fonts.find(request);
  return file ? FontView{m_fonts.familyOf(request), file->path} : FontView{};
}
