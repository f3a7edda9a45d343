// Implements the careful reading and writing of another program's file.
#include "host/linux/xscreensaver/preferencesFile.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/linux/fileDescriptor.h"
#include "host/linux/hostFailure.h"
#include "support/fileSystem.h"

namespace {

constexpr std::size_t largestSize = std::size_t{1024} * 1024;  // bytes; XScreenSaver writes ten thousand

std::string messageOf(int errorNumber) {
  return std::generic_category().message(errorNumber);
}

[[noreturn]] void refuseToRead(const std::string& path, const std::string& cause, const std::string& cure) {
  throw HostFailure("cannot read " + path + " (" + cause + "): " + cure);
}

[[noreturn]] void refuseToWrite(const std::string& path, const std::string& cause, const std::string& cure) {
  throw HostFailure("cannot write " + path + " (" + cause + "): " + cure + "; nothing was changed");
}

// Never waits: a pipe is opened as it is, and then refused.
FileDescriptor openForReading(const std::string& path) {
  FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.isOpen() && errno != ENOENT) {
    refuseToRead(path, messageOf(errno), "make it a file that you may read");
  }
  return file;
}

std::string contentOf(const FileDescriptor& file, const std::string& path) {
  std::string content;
  std::array<char, 16384> piece{};
  for (;;) {
    const ssize_t count = read(file.get(), piece.data(), piece.size());
    if (count < 0 && errno != EINTR) {
      refuseToRead(path, messageOf(errno), "make it a file that can be read");
    }
    if (count == 0) {
      return content;
    }
    content.append(piece.data(), static_cast<std::size_t>(count > 0 ? count : 0));
    if (content.size() > largestSize) {
      refuseToRead(path, "it is larger than 1 MiB",
                   "move it away, for it can hardly be what it is named for");
    }
  }
}

// What is there, or else the folder that it would be made in, belongs to whoever runs this.
bool isUsersOwn(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0) {
    return status.st_uid == geteuid();
  }
  const std::string folder = std::filesystem::path(path).parent_path().string();
  return stat(folder.c_str(), &status) != 0 || status.st_uid == geteuid();
}

}  // namespace

std::optional<std::string> readPreferences(const std::string& path) {
  const FileDescriptor file = openForReading(path);
  if (!file.isOpen()) {
    return std::nullopt;
  }
  struct stat status {};
  if (fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
    refuseToRead(path, S_ISDIR(status.st_mode) ? "it is a folder" : "it is no regular file", "move it away");
  }
  return contentOf(file, path);
}

void writePreferences(const std::string& path, std::string_view content) {
  if (!isUsersOwn(path)) {
    refuseToWrite(path, "it belongs to another user", "run this as that user, without sudo");
  }
  std::string error;
  if (!xplFileSystemMini::replaceFile(path, content, error)) {
    refuseToWrite(path, error, "make the file and its folder writable, and see that the disk has room");
  }
}

void removePreferences(const std::string& path) {
  if (!isUsersOwn(path)) {
    refuseToWrite(path, "it belongs to another user", "run this as that user, without sudo");
  }
  std::error_code error;
  const auto target = std::filesystem::canonical(path, error);
  if (!error) {
    std::filesystem::remove(target, error);
  }
  if (error) {
    refuseToWrite(path, error.message(), "make its folder writable");
  }
}
