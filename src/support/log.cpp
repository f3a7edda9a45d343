// Implements the log of a run: its file, its opening and closing entries, and the copies on the desktop.
#include "support/log.h"

#include <fstream>

#include "support/fileSystem.h"

namespace {

constexpr const char* startingText = "xplLog starting";
constexpr const char* closingText = "xplLog closing";
constexpr const char* errorMark = "ERROR>\t";

// Deliberate: "becase" is spelt so, and nothing is disabled; later entries try to write as before. Whoever
// watches the debugger's output searches for this text, so neither the spelling nor the promise is mended.
constexpr const char* noFileNote = "Disabling log becase file does not exist at:";

std::array<xplLogLevel*, 3> levels() {
  return {&logError(), &logWarning(), &logInfo()};
}

// True when a line of the file holds the text. A missing file holds nothing.
bool contains(const std::string& path, const char* text) {
  if (!xplFileSystemMini::fileExists(path)) {
    return false;
  }
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    if (line.find(text) != std::string::npos) {
      return true;
    }
  }
  return false;
}

std::string logPath(const std::string& applicationName) {
  const std::string name =
      applicationName.empty() ? xplFileSystemMini::applicationFileName() : applicationName;
  return xplFileSystemMini::getFolder_Temporary() + name + ".xplLog.txt";
}

}  // namespace

xplLog::Previous xplLog::takeOver(xplLogLevel& level, const std::string& path) {
  Previous previous{level.path(), level.isEmpty(), level.onlyIfFileExists, level.echoToDebugger};
  level.setPath(path);
  level.onlyIfFileExists = false;
  level.echoToDebugger = false;
  return previous;
}

void xplLog::giveBack(xplLogLevel& level, const Previous& previous) {
  level.setPath(previous.path);
  level.m_isEmpty.store(previous.isEmpty, std::memory_order_relaxed);
  level.onlyIfFileExists = previous.onlyIfFileExists;
  level.echoToDebugger = previous.echoToDebugger;
}

xplLog::xplLog(const std::string& applicationName, bool copyIfUnfinished, bool copyIfErrors)
    : m_path(logPath(applicationName)),
      m_previous{takeOver(logError(), m_path), takeOver(logWarning(), m_path), takeOver(logInfo(), m_path)} {
  copyPreviousRun(copyIfUnfinished, copyIfErrors);
  if (xplFileSystemMini::fileExists(m_path)) {
    xplFileSystemMini::emptyFile(m_path);
  }
  xplLogLevel::m_lastStampedSecond.store(0, std::memory_order_relaxed);  // the new file has no stamp yet
  logInfo().add(startingText);
  xplWriteToDebugger(("Log filename:" + m_path + "\n").c_str());
  logInfo().addf("Log filename:%s", m_path.c_str());
  if (!xplFileSystemMini::fileExists(m_path)) {
    xplWriteToDebugger((noFileNote + m_path + "\n").c_str());
  }
  logInfo().add("Application build timestamp:" __DATE__ "  " __TIME__);
  logInfo().add("Using the xpl support library, https://xpl.example/");
  logInfo().add(xplFileSystemMini::report());
}

xplLog::~xplLog() {
  logInfo().add(closingText);
  if (!logError().isEmpty()) {
    copyToDesktop();
  }
  const auto writers = levels();
  for (std::size_t i = 0; i < writers.size(); ++i) {
    giveBack(*writers[i], m_previous[i]);
  }
}

void xplLog::copyPreviousRun(bool copyIfUnfinished, bool copyIfErrors) const {
  const bool unfinished =
      copyIfUnfinished && contains(m_path, startingText) && !contains(m_path, closingText);
  if (unfinished || (copyIfErrors && contains(m_path, errorMark))) {
    copyToDesktop();
  }
}

void xplLog::copyToDesktop() const {
  if (xplFileSystemMini::fileExists(m_path)) {
    xplFileSystemMini::copyFileIntoFolder(m_path, xplFileSystemMini::getFolder_Desktop());
  }
}
