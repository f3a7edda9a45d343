// The file operations on Linux.
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/fileSystem.h"
#include "support/fileSystemPlatform.h"

namespace {

constexpr mode_t privateFileMode = 0600;

// A file descriptor that is closed with the object.
class Descriptor {
 public:
  explicit Descriptor(int value) : m_value(value) {}
  ~Descriptor() {
    if (m_value >= 0) {
      close(m_value);
    }
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  bool isOpen() const { return m_value >= 0; }
  int value() const { return m_value; }

 private:
  int m_value;
};

bool writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) {
      continue;
    }
    if (written <= 0) {
      return false;
    }
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// The file that a link at the path leads to, so that a user's link to the file stays a link.
std::string resolved(const std::string& path) {
  char target[PATH_MAX];
  return realpath(path.c_str(), target) != nullptr ? target : path;
}

bool isType(const std::string& path, mode_t type) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == type;
}

// Writes the new file completely; on failure errno says why.
bool writeNewFile(const std::string& path, std::string_view content, mode_t mode) {
  unlink(path.c_str());
  const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode));
  return file.isOpen() && writeAll(file.value(), content) && fsync(file.value()) == 0;
}

}  // namespace

char xplFileSystemMini::separator() {
  return '/';
}

const char* xplFileSystemMini::lineEnd() {
  return "\n";
}

bool xplFileSystemMini::fileExists(const std::string& path) {
  return isType(path, S_IFREG);
}

bool xplFileSystemMini::folderExists(const std::string& path) {
  return isType(path, S_IFDIR);
}

bool xplFileSystemMini::createFolder(const std::string& path) {
  return mkdir(path.c_str(), 0700) == 0;
}

bool xplFileSystemMini::emptyFile(const std::string& path) {
  return Descriptor(
             open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, privateFileMode))
      .isOpen();
}

bool xplFileSystemMini::appendToFile(const std::string& path, std::string_view text) {
  const Descriptor file(open(
      path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, privateFileMode));
  return file.isOpen() && writeAll(file.value(), text);
}

bool xplFileSystemMini::replaceFile(const std::string& path, std::string_view content,
                                    std::string& errorMessage) {
  const std::string target = resolved(path);
  const std::string next = target + ".new";
  struct stat old {};
  const mode_t mode = stat(target.c_str(), &old) == 0 ? old.st_mode & 07777 : privateFileMode;
  if (writeNewFile(next, content, mode) && std::rename(next.c_str(), target.c_str()) == 0) {
    return true;
  }
  errorMessage = std::generic_category().message(errno);
  unlink(next.c_str());
  return false;
}

bool fileSystemPlatform::copyFile(const std::string& from, const std::string& to) {
  // A link at the destination is replaced, not followed.
  std::error_code error;
  std::filesystem::remove(to, error);
  return std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
}

void xplWriteToDebugger(const char* text) {
  std::fputs(text, stderr);
}
