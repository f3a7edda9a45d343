// Implements the place of the one full run.
#include "host/linux/onlyFullRun.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>

#include "support/fileSystem.h"

namespace {

// ":0" and ":0.0" are two names of the same display: the second one adds its screen.
std::string withoutScreen(const std::string& display) {
  const auto colon = display.rfind(':');
  const auto dot = display.rfind('.');
  const bool hasScreen = colon != std::string::npos && dot != std::string::npos && dot > colon;
  return hasScreen ? display.substr(0, dot) : display;
}

bool isTaken(const FileDescriptor& file) {
  return flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

}  // namespace

std::string OnlyFullRun::pathFor(const std::string& display) {
  const std::string folder = xplFileSystemMini::getFolder_Temporary();
  // A Wayland display may be named by the path of its socket.
  std::string name = withoutScreen(display);
  std::replace(name.begin(), name.end(), '/', '-');
  return folder.empty() ? "" : folder + "lunaria-runs-on-" + name;
}

OnlyFullRun::OnlyFullRun(const std::string& display)
    : m_path(pathFor(display)),
      m_file(open(m_path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)),
      m_isOurs(!m_file.isOpen() || !isTaken(m_file)) {}

OnlyFullRun::~OnlyFullRun() {
  if (m_isOurs && m_file.isOpen()) {
    unlink(m_path.c_str());
  }
}
