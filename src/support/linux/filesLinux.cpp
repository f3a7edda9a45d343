// The file operations on Linux.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/fileSystem.h"
#include "support/fileSystemPlatform.h"
#include "support/linux/openFile.h"

namespace {

constexpr mode_t ownerOnly = 0600;
constexpr int longestLinkChain = 40;

// Opens a regular file for writing. No link is followed, and neither a pipe nor a device is waited for or
// written.
OpenFile openForWriting(const std::string& path, int flags) {
  OpenFile file(open(path.c_str(),
                     O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | flags, ownerOnly));
  struct stat status {};
  if (file.isOpen() && (fstat(file.descriptor(), &status) != 0 || !S_ISREG(status.st_mode))) {
    file.close();
  }
  return file;
}

std::string messageOf(int errorNumber) {
  return std::generic_category().message(errorNumber);
}

// Where the links at the path lead, also where nothing is there yet; the path itself where it is no link.
std::string endOfLinks(const std::string& path) {
  std::filesystem::path place = path;
  std::error_code error;
  for (int i = 0; i < longestLinkChain && std::filesystem::is_symlink(place, error); ++i) {
    const auto target = std::filesystem::read_symlink(place, error);
    if (error) {
      break;
    }
    place = place.parent_path() / target;  // an absolute target takes the whole place
  }
  return place.string();
}

// The mode that the new file gets: that of the old one, or else the owner's alone.
// False, with errno set, where what is there is no file, or one that its owner has protected.
bool modeForReplacement(const std::string& path, mode_t& mode) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) {
    mode = ownerOnly;
    return errno == ENOENT;
  }
  mode = status.st_mode & 07777;
  if (!S_ISREG(status.st_mode)) {
    errno = S_ISDIR(status.st_mode) ? EISDIR : S_ISLNK(status.st_mode) ? ELOOP : EINVAL;
    return false;
  }
  // A rename alone would not ask the file's own rights.
  return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

// Makes a rename last through a loss of power. Some file systems cannot; the file is whole all the same.
void flushFolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  const OpenFile directory(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.isOpen()) {
    fsync(directory.descriptor());
  }
}

// Writes the new file and puts it in the old one's place; false, with errno set, where a step failed.
bool writeAndRename(const std::string& path, std::string_view content, mode_t mode) {
  std::string temporary = path + ".XXXXXX";
  OpenFile file(mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.isOpen()) {
    return false;
  }
  if (file.write(content) && fchmod(file.descriptor(), mode) == 0 && fsync(file.descriptor()) == 0 &&
      file.close() && rename(temporary.c_str(), path.c_str()) == 0) {
    flushFolderOf(path);
    return true;
  }
  const int cause = errno;
  unlink(temporary.c_str());
  errno = cause;
  return false;
}

}  // namespace

bool xplFileSystemMini::fileExists(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool xplFileSystemMini::folderExists(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool xplFileSystemMini::createFolder(const std::string& path) {
  return mkdir(path.c_str(), 0700) == 0;
}

bool xplFileSystemMini::emptyFile(const std::string& path) {
  OpenFile file = openForWriting(path, 0);
  return file.isOpen() && ftruncate(file.descriptor(), 0) == 0 && file.close();
}

bool xplFileSystemMini::appendToFile(const std::string& path, std::string_view text) {
  OpenFile file = openForWriting(path, O_APPEND);
  return file.isOpen() && file.write(text) && file.close();
}

bool fileSystemPlatform::copyFile(const std::string& from, const std::string& to) {
  // A link at the destination is replaced, not followed.
  std::error_code error;
  if (std::filesystem::is_symlink(to, error)) {
    std::filesystem::remove(to, error);
  }
  return std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
}

bool xplFileSystemMini::replaceFile(const std::string& path, std::string_view content,
                                    std::string& errorMessage) {
  const std::string target = endOfLinks(path);
  mode_t mode = ownerOnly;
  if (!modeForReplacement(target, mode) || !writeAndRename(target, content, mode)) {
    errorMessage = messageOf(errno);
    return false;
  }
  return true;
}

char xplFileSystemMini::separator() {
  return '/';
}

bool xplFileSystemMini::isSeparator(char character) {
  return character == '/';
}

const char* xplFileSystemMini::lineEnd() {
  return "\n";
}

// There is no debugger's channel here. Standard error stands in for it on request only: what stands there is
// for the user to read.
void xplWriteToDebugger(const char* text) {
  if (std::getenv("LUNARIA_DEBUG") != nullptr) {
    std::fputs(text, stderr);
  }
}
