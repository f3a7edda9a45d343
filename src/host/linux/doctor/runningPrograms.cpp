// Looks for programs of this user among the processes.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

#include "host/linux/doctor/realSystem.h"
#include "support/fileSystem.h"

namespace {

constexpr std::size_t kernelNameLength = 15;  // what the kernel keeps of a program's name

std::string wholeFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool isOurs(const std::string& process) {
  struct stat facts {};
  return ::stat(process.c_str(), &facts) == 0 && facts.st_uid == ::geteuid();
}

// Its words between blanks where it is a process of this program; a script counts by its own name, which the
// kernel knows, and not by its interpreter's.
std::optional<std::string> wordsOf(const std::string& process, const std::string& name) {
  std::string kernelName = wholeFile(process + "/comm");
  kernelName = kernelName.substr(0, kernelName.find('\n'));
  std::string words = wholeFile(process + "/cmdline");
  const std::string first = xplFileSystemMini::fileNameOf(words.substr(0, words.find('\0')));
  // A process that has ended and is not yet waited for has no words any more.
  if (words.empty() || (kernelName != name.substr(0, kernelNameLength) && first != name)) {
    return std::nullopt;
  }
  std::replace(words.begin(), words.end(), '\0', ' ');
  return words;
}

}  // namespace

std::optional<std::string> RealSystem::runningProgram(const std::string& name) {
  std::error_code error;
  for (std::filesystem::directory_iterator entry("/proc", error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string process = entry->path().string();
    const bool isProcess = process.find_first_not_of("0123456789", sizeof "/proc/" - 1) == std::string::npos;
    if (isProcess && isOurs(process)) {
      if (auto words = wordsOf(process, name)) {
        return words;
      }
    }
  }
  return std::nullopt;
}

std::optional<std::string> RealSystem::contentOf(const std::string& path) {
  // Opening what is no file could wait for ever: a pipe has no writer.
  if (!xplFileSystemMini::fileExists(path)) {
    return std::nullopt;
  }
  std::ifstream file(path, std::ios::binary);
  std::string content{std::istreambuf_iterator<char>(file), {}};
  return file.bad() || !file.is_open() ? std::nullopt : std::optional(content);
}
