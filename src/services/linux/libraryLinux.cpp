// Loading a library on Linux, and who could have changed it.
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include "graphics/linux/utf8.h"
#include "services/platform.h"
#include "support/fileSystem.h"

namespace {

class SharedLibrary : public xpliSharedLibrary {
 public:
  explicit SharedLibrary(void* handle) : m_handle(handle) {}
  void* find(const char* function) const override { return dlsym(m_handle, function); }

 private:
  void* m_handle;  // never closed
};

bool belongsToUserOrSystem(const struct stat& status) {
  return status.st_uid == 0 || status.st_uid == geteuid();
}

bool othersCanWrite(const struct stat& status) {
  return (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
}

// A folder above: whoever can write into it could put another folder in the place of the one below, unless it
// is one in which everybody may only touch what is theirs.
bool keepsItsFolders(const struct stat& status) {
  return !othersCanWrite(status) || (status.st_mode & S_ISVTX) != 0;
}

}  // namespace

bool xplOnlyUserCanChange(const std::string& path, std::string& reason) {
  if (path.empty() || path.front() != '/') {
    reason = "its path is not a full one";
    return false;
  }
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
    reason = "it is no regular file";
    return false;
  }
  bool isOwn = belongsToUserOrSystem(status) && !othersCanWrite(status);
  std::string folder = xplFileSystemMini::folderOf(path);
  for (bool isNearest = true; isOwn; isNearest = false) {
    const std::string shown = folder.empty() ? "/" : folder;
    isOwn = lstat(shown.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && belongsToUserOrSystem(status) &&
            (isNearest ? !othersCanWrite(status) : keepsItsFolders(status));
    if (folder.empty()) {
      break;
    }
    folder = xplFileSystemMini::folderOf(folder);
  }
  if (!isOwn) {
    reason = "others can change it or its folder";
  }
  return isOwn;
}

std::unique_ptr<xpliSharedLibrary> xplLoadLibrary(const std::string& path, std::string& reason) {
  void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    const char* message = dlerror();
    reason = message != nullptr ? message : "unknown reason";
    return nullptr;
  }
  return std::make_unique<SharedLibrary>(handle);
}

const char* xplAnalyticsLibraryName() {
  return "libTrackerbird.so";
}

std::wstring xplWiden(const std::string& text) {
  static_assert(sizeof(wchar_t) == sizeof(char32_t));
  std::wstring wide;
  forEachCharacter(text, [&wide](char32_t character) { wide += static_cast<wchar_t>(character); });
  return wide;
}
