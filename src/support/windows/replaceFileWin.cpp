// How a file is replaced whole or not at all on Windows.
#include <array>
#include <atomic>
#include <string>

#include "support/clock.h"
#include "support/fileSystem.h"
#include "support/windows/fileHandle.h"

namespace {

std::string messageOf(DWORD error) {
  char* text = nullptr;
  const DWORD length = FormatMessageA(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
      error, 0, reinterpret_cast<char*>(&text), 0, nullptr);
  std::string message(text != nullptr ? text : "", length);
  LocalFree(text);
  while (!message.empty() && (message.back() == '\n' || message.back() == '\r')) {
    message.pop_back();
  }
  return message.empty() ? "error " + std::to_string(error) : message;
}

// The file that a link at the path leads to; the path itself where it is no link or leads nowhere.
std::string endOfLinks(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    return path;
  }
  const Handle file(CreateFileA(path.c_str(), FILE_READ_ATTRIBUTES,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  std::array<char, 32768> target{};
  const DWORD length = file.isOpen() ? GetFinalPathNameByHandleA(file.value(), target.data(),
                                                                 static_cast<DWORD>(target.size()), 0)
                                     : 0;
  return length > 0 && length < target.size() ? target.data() : path;
}

// Writes a file that is not there yet; on failure the last error says why, and nothing is left behind.
bool writeNewFile(const std::string& path, std::string_view content) {
  DWORD error = ERROR_SUCCESS;
  {
    const Handle file(
        CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.isOpen()) {
      return false;
    }
    if (writeAll(file.value(), content) && FlushFileBuffers(file.value()) != FALSE) {
      return true;
    }
    error = GetLastError();
  }
  DeleteFileA(path.c_str());
  SetLastError(error);
  return false;
}

// A name beside the path that no other process and no other call of this one takes. One that a process of the
// same number left behind when it crashed is removed.
std::string newNameBeside(const std::string& path) {
  static std::atomic<unsigned> counter{0};
  const std::string name = path + "." + std::to_string(GetCurrentProcessId()) + "-" +
                           std::to_string(counter.fetch_add(1)) + ".new";
  DeleteFileA(name.c_str());
  return name;
}

// Renames a file over another. While any program reads that one the system refuses, and a virus scanner, say,
// reads each new file at once: for a moment it is tried again. False, with the last error set, where it could
// not.
bool moveOver(const std::string& from, const std::string& to) {
  constexpr unsigned longestWait = 50;  // milliseconds
  constexpr unsigned waitStep = 5;      // milliseconds
  constexpr DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  for (unsigned waited = 0;; waited += waitStep) {
    if (MoveFileExA(from.c_str(), to.c_str(), flags) != FALSE) {
      return true;
    }
    const DWORD error = GetLastError();
    if ((error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED) || waited >= longestWait) {
      return false;
    }
    xplClock::sleep(waitStep);
  }
}

}  // namespace

bool xplFileSystemMini::replaceFile(const std::string& path, std::string_view content,
                                    std::string& errorMessage) {
  const std::string target = endOfLinks(path);
  const DWORD attributes = GetFileAttributesA(target.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    errorMessage = messageOf(ERROR_ACCESS_DENIED);  // who protected the file wants it left alone
    return false;
  }
  const std::string next = newNameBeside(target);
  const bool written = writeNewFile(next, content);
  if (written && moveOver(next, target)) {
    return true;
  }
  errorMessage = messageOf(GetLastError());
  if (written) {
    DeleteFileA(next.c_str());
  }
  return false;
}
