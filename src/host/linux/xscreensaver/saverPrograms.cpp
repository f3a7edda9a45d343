// Looks for the programs of XScreenSaver's list.
#include "host/linux/xscreensaver/saverPrograms.h"

#include <algorithm>
#include <cstdlib>

#include <unistd.h>

#include "support/fileSystem.h"

namespace xscreensaver {

namespace {

bool isProgram(const std::string& path) {
  return xplFileSystemMini::fileExists(path) && access(path.c_str(), X_OK) == 0;
}

}  // namespace

bool isOnPath(const std::string& name) {
  const char* value = std::getenv("PATH");
  const std::string path = value != nullptr ? value : "";
  for (std::size_t begin = 0; begin < path.size();) {
    const std::size_t end = std::min(path.find(':', begin), path.size());
    if (isProgram(xplFileSystemMini::joinPath(path.substr(begin, end - begin), name))) {
      return true;
    }
    begin = end + 1;
  }
  return false;
}

bool canStart(const std::string& program) {
  if (program.find('/') != std::string::npos) {
    return isProgram(program);
  }
  for (const std::string_view folder : saverFolders) {
    if (isProgram(xplFileSystemMini::joinPath(folder, program))) {
      return true;
    }
  }
  return isOnPath(program);
}

}  // namespace xscreensaver
