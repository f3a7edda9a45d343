// The well-known folders on Linux: the XDG ones, and a temporary folder that no other user can reach into.
#include <climits>
#include <cstdlib>
#include <fstream>
#include <vector>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/fileSystem.h"
#include "support/fileSystemPlatform.h"

namespace {

constexpr mode_t privateMode = 0700;

// The value of a variable that names a folder; relative ones are ignored, as the XDG base directory rules
// ask.
std::string absoluteFromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  if (value == nullptr || *value != '/') {
    return "";
  }
  std::string folder = value;
  while (folder.size() > 1 && folder.back() == '/') {
    folder.pop_back();
  }
  return folder;
}

std::string homeFromPasswordDatabase() {
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr ||
      found->pw_dir == nullptr || *found->pw_dir != '/') {
    return "";
  }
  return found->pw_dir;
}

// A folder below the home folder; empty where there is no home.
std::string belowHome(const char* name) {
  const std::string home = fileSystemPlatform::homeFolder();
  return home.empty() ? "" : xplFileSystemMini::joinPath(home, name);
}

// Makes a folder and those above it, for the user alone. What fails shows when the folder is used.
void createFolders(const std::string& folder) {
  for (auto end = folder.find('/', 1); end != std::string::npos; end = folder.find('/', end + 1)) {
    mkdir(folder.substr(0, end).c_str(), privateMode);
  }
  mkdir(folder.c_str(), privateMode);
}

// An XDG folder: the variable's, else the default below the home folder.
std::string xdgFolder(const char* variable, const char* defaultName) {
  const std::string folder = absoluteFromEnvironment(variable);
  return folder.empty() ? belowHome(defaultName) : folder;
}

std::string madeXdgFolder(const char* variable, const char* defaultName) {
  std::string folder = xdgFolder(variable, defaultName);
  if (!folder.empty() && !xplFileSystemMini::folderExists(folder)) {
    createFolders(folder);
  }
  return folder;
}

// True for a folder, not a link to one, that belongs to the user and that nobody else can write into.
bool isUsersOwn(const std::string& folder) {
  struct stat status {};
  return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
         (status.st_mode & (S_IWGRP | S_IWOTH)) == 0 &&
         faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

// The value of a line such as XDG_DESKTOP_DIR="$HOME/Desktop", with the home folder put in and escapes
// undone; empty where it is none or not of a form that the file's rules allow.
std::string userDirectoryOf(const std::string& line, const std::string& variable) {
  const auto start = line.find_first_not_of(" \t");
  const std::string head = variable + "=\"";
  if (start == std::string::npos || line.compare(start, head.size(), head) != 0) {
    return "";
  }
  std::string value;
  bool closed = false;
  for (auto i = start + head.size(); i < line.size() && !closed; ++i) {
    if (line[i] == '\\' && i + 1 < line.size()) {
      value += line[++i];
    } else if (line[i] == '"') {
      closed = true;
    } else {
      value += line[i];
    }
  }
  const std::string homePrefix = "$HOME";
  if (closed && (value == homePrefix || value.rfind(homePrefix + "/", 0) == 0)) {
    const std::string home = fileSystemPlatform::homeFolder();
    const std::string rest = value.substr(homePrefix.size());
    const bool isHome = rest.find_first_not_of('/') == std::string::npos;
    return home.empty() || isHome ? home : xplFileSystemMini::joinPath(home, rest);
  }
  return closed && value.rfind('/', 0) == 0 ? value : "";
}

}  // namespace

std::string fileSystemPlatform::homeFolder() {
  const std::string home = absoluteFromEnvironment("HOME");
  return home.empty() ? homeFromPasswordDatabase() : home;
}

std::string fileSystemPlatform::temporaryFolder() {
  for (const char* variable : {"TMPDIR", "XDG_RUNTIME_DIR"}) {
    const std::string folder = absoluteFromEnvironment(variable);
    if (!folder.empty() && isUsersOwn(folder)) {
      return xplFileSystemMini::joinPath(folder, "");
    }
  }
  const std::string folder = belowHome(".cache/lunaria/tmp");
  if (folder.empty()) {
    return "";
  }
  createFolders(folder);
  return isUsersOwn(folder) ? folder + "/" : "";
}

std::string fileSystemPlatform::allUsersDataFolder() {
  return madeXdgFolder("XDG_DATA_HOME", ".local/share");
}

std::string fileSystemPlatform::userDataFolder() {
  return madeXdgFolder("XDG_CONFIG_HOME", ".config");
}

std::string fileSystemPlatform::desktopFolder() {
  std::string desktop;
  const std::string configuration = xdgFolder("XDG_CONFIG_HOME", ".config");
  const std::string list = xplFileSystemMini::joinPath(configuration, "user-dirs.dirs");
  if (!configuration.empty() && xplFileSystemMini::fileExists(list)) {
    std::ifstream lines(list);
    for (std::string line; std::getline(lines, line);) {
      const std::string folder = userDirectoryOf(line, "XDG_DESKTOP_DIR");
      desktop = folder.empty() ? desktop : folder;
    }
  }
  return desktop.empty() ? belowHome("Desktop") : desktop;
}

std::string fileSystemPlatform::fontsFolder() {
  return belowHome(".local/share/fonts");
}

std::string fileSystemPlatform::applicationFullPath() {
  char buffer[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer);
  if (length <= 0 || length == static_cast<ssize_t>(sizeof buffer)) {
    return "";
  }
  std::string path(buffer, static_cast<std::size_t>(length));
  // The kernel marks a program whose file was replaced while it runs, as an update does.
  const std::string mark = " (deleted)";
  if (path.size() > mark.size() && path.compare(path.size() - mark.size(), mark.size(), mark) == 0 &&
      !xplFileSystemMini::fileExists(path)) {
    path.resize(path.size() - mark.size());
  }
  return path;
}
