// The well-known folders on Linux, by the base directory rules.
#include <array>
#include <cstdlib>
#include <fstream>
#include <vector>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/fileSystem.h"
#include "support/fileSystemPlatform.h"

namespace {

constexpr mode_t privateMode = 0700;

// An environment variable that holds an absolute path; empty otherwise, as the base directory rules ask.
std::string absoluteVariable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && value[0] == '/' ? value : "";
}

std::string homeOfPasswordDatabase() {
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr ||
      found->pw_dir == nullptr || found->pw_dir[0] != '/') {
    return "";
  }
  return found->pw_dir;
}

// Makes a folder with its missing parents, each for the user alone.
bool makeFolders(const std::string& path) {
  for (std::size_t end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1)) {
    mkdir(path.substr(0, end).c_str(), privateMode);
  }
  mkdir(path.c_str(), privateMode);
  return xplFileSystemMini::folderExists(path);
}

// The variable's folder, or the one of this name in the home folder; made where missing.
std::string baseFolder(const char* variable, const char* nameInHome) {
  std::string folder = absoluteVariable(variable);
  if (folder.empty()) {
    const std::string home = fileSystemPlatform::homeFolder();
    if (home.empty()) {
      return "";
    }
    folder = home + "/" + nameInHome;
  }
  makeFolders(folder);
  return folder;
}

// True for a folder that belongs to the user and in which nobody else can put anything.
bool isOwn(const std::string& folder) {
  struct stat status {};
  return !folder.empty() && stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == getuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0 &&
         access(folder.c_str(), W_OK | X_OK) == 0;
}

// The value of a line XDG_DESKTOP_DIR="$HOME/..." or "/..."; empty where the file has none.
std::string desktopOfUserDirs(const std::string& home) {
  std::ifstream file(baseFolder("XDG_CONFIG_HOME", ".config") + "/user-dirs.dirs");
  const std::string start = "XDG_DESKTOP_DIR=\"";
  for (std::string line; std::getline(file, line);) {
    const auto end = line.rfind('"');
    if (line.rfind(start, 0) != 0 || end == std::string::npos || end < start.size()) {
      continue;
    }
    std::string value = line.substr(start.size(), end - start.size());
    if (value.rfind("$HOME", 0) == 0) {
      value.replace(0, 5, home);
    }
    return !value.empty() && value[0] == '/' ? value : "";
  }
  return "";
}

}  // namespace

namespace fileSystemPlatform {

// A folder in which another user could plant a link must not hold the log.
std::string temporaryFolder() {
  for (const char* variable : {"TMPDIR", "XDG_RUNTIME_DIR"}) {
    const std::string folder = absoluteVariable(variable);
    if (isOwn(folder)) {
      return folder.back() == '/' ? folder : folder + "/";
    }
  }
  const std::string home = homeFolder();
  if (home.empty()) {
    return "";
  }
  const std::string folder = home + "/.cache/lunaria/tmp";
  return makeFolders(folder) && isOwn(folder) ? folder + "/" : "";
}

std::string homeFolder() {
  std::string home = absoluteVariable("HOME");
  return home.empty() ? homeOfPasswordDatabase() : home;
}

std::string userDataFolder() {
  return baseFolder("XDG_CONFIG_HOME", ".config");
}

// The user's own as well: a saver runs as its user and may not write where all users' data lie.
std::string allUsersDataFolder() {
  return baseFolder("XDG_DATA_HOME", ".local/share");
}

std::string desktopFolder() {
  const std::string home = homeFolder();
  if (home.empty()) {
    return "";
  }
  const std::string chosen = desktopOfUserDirs(home);
  return chosen.empty() ? home + "/Desktop" : chosen;
}

std::string fontsFolder() {
  const std::string home = homeFolder();
  return home.empty() ? "" : home + "/.local/share/fonts";
}

std::string applicationFullPath() {
  std::array<char, 4096> path{};
  const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
  return length > 0 ? std::string(path.data(), static_cast<std::size_t>(length)) : "";
}

}  // namespace fileSystemPlatform
