// Paths, the folders by kind and the report: what is alike on every platform.
#include "support/fileSystem.h"

#include <memory>

#include "support/fileSystemPlatform.h"
#include "support/log.h"

namespace {

// Where all folder queries answer below; empty in a normal run. Never destroyed: destructors of other statics
// may still log when the process ends.
std::string& redirectedRoot() {
  static std::string* const root = std::make_unique<std::string>().release();
  return *root;
}

std::size_t lastSeparator(std::string_view path) {
  return path.find_last_of("\\/");
}

// The folder of this name below the redirected root, made where missing.
std::string redirected(const char* name) {
  std::string folder = xplFileSystemMini::joinPath(redirectedRoot(), name);
  if (!xplFileSystemMini::folderExists(folder)) {
    xplFileSystemMini::createFolder(folder);
  }
  return folder;
}

std::string orReport(std::string folder, const char* errorText) {
  if (folder.empty()) {
    logError().add(errorText);
  }
  return folder;
}

std::string folderOrReport(const char* redirectedName, std::string (*query)(), const char* errorText) {
  return redirectedRoot().empty() ? orReport(query(), errorText) : redirected(redirectedName);
}

}  // namespace

void xplFileSystemMini::redirectFolders(const std::string& root) {
  redirectedRoot() = root;
}

std::string xplFileSystemMini::getFolder_Temporary() {
  if (redirectedRoot().empty()) {
    return fileSystemPlatform::temporaryFolder();
  }
  return redirected("tmp") + separator();
}

std::string xplFileSystemMini::getFolder_UserHome() {
  return folderOrReport("home", fileSystemPlatform::homeFolder, "Error #6531 in getFolder_UserHome\n");
}

std::string xplFileSystemMini::getFolder_CommonAppData() {
  return folderOrReport("allUsersData", fileSystemPlatform::allUsersDataFolder,
                        "Error #6531 in getFolder_CommonAppData\n");
}

std::string xplFileSystemMini::getFolder_UserData() {
  return folderOrReport("userData", fileSystemPlatform::userDataFolder,
                        "Error #6531 in getFolder_AppData::getFolder_UserData\n");
}

std::string xplFileSystemMini::getFolder_Desktop() {
  return folderOrReport("Desktop", fileSystemPlatform::desktopFolder,
                        "Error #5414 in xplFileSystemMini::getFolder_Desktop\n");
}

std::string xplFileSystemMini::getFolder_Fonts() {
  return folderOrReport("fonts", fileSystemPlatform::fontsFolder,
                        "Error #4824 in xplFileSystemMini::getFolder_Fonts\n");
}

std::string xplFileSystemMini::getFolderByKind(int kind) {
  switch (kind) {
    case 1:
      return getFolder_CommonAppData();
    case 2:
      return getFolder_Temporary();
    case 3:
      return getFolder_UserData();
    default:
      return "";
  }
}

std::string xplFileSystemMini::applicationFullPath() {
  return fileSystemPlatform::applicationFullPath();
}

std::string xplFileSystemMini::applicationFileName() {
  return fileNameOf(applicationFullPath());
}

std::string xplFileSystemMini::applicationFolder() {
  return folderOf(applicationFullPath());
}

std::string xplFileSystemMini::joinPath(std::string_view folder, std::string_view name) {
  // A folder that is not known must not turn into the root of the file system.
  if (folder.empty()) {
    return std::string(name);
  }
  while (!folder.empty() && isSeparator(folder.back())) {
    folder.remove_suffix(1);
  }
  while (!name.empty() && isSeparator(name.front())) {
    name.remove_prefix(1);
  }
  return std::string(folder) + separator() + std::string(name);
}

std::string xplFileSystemMini::fileNameOf(std::string_view path) {
  const auto last = lastSeparator(path);
  return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

std::string xplFileSystemMini::folderOf(std::string_view path) {
  const auto last = lastSeparator(path);
  return std::string(last == std::string_view::npos ? std::string_view() : path.substr(0, last));
}

bool xplFileSystemMini::copyFileIntoFolder(const std::string& path, const std::string& folder) {
  if (!fileExists(path) || !folderExists(folder)) {
    return false;
  }
  return fileSystemPlatform::copyFile(path, joinPath(folder, fileNameOf(path)));
}

// Deliberate: the system's and the user's temporary folder are asked of the same query, so the two lines
// always agree; and the all-users folder stands under the label "AppData path:". Readers of logs know the
// report so.
std::string xplFileSystemMini::report() {
  const auto line = [](const char* label, const std::string& value) { return label + value + "\n"; };
  return "File System Report by xplFileSystemMini\n----------------------\n" +
         line("App full path filename:", applicationFullPath()) +
         line("App filename:", applicationFileName()) + line("App path:", applicationFolder()) +
         line("System's Temp folder:", getFolder_Temporary()) +
         line("User's Temp folder:", getFolder_Temporary()) +
         line("User's home folder:", getFolder_UserHome()) + line("Desktop folder:", getFolder_Desktop()) +
         line("Fonts folder:", getFolder_Fonts()) + line("AppData path:", getFolder_CommonAppData()) +
         line("UserData path:", getFolder_UserData()) + "End of file system report\n----------------------\n";
}
