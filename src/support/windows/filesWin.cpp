// The file operations on Windows.
#include <cstdio>
#include <memory>

#include "support/fileSystem.h"
#include "support/windows/shellHeaders.h"

namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

// A handle that is closed with the object.
class Handle {
 public:
  explicit Handle(HANDLE value) : m_value(value) {}
  ~Handle() {
    if (isOpen()) {
      CloseHandle(m_value);
    }
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  bool isOpen() const { return m_value != INVALID_HANDLE_VALUE; }
  HANDLE value() const { return m_value; }

 private:
  HANDLE m_value;
};

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

bool writeAll(HANDLE file, std::string_view content) {
  constexpr std::size_t largestPiece = 1U << 20;
  while (!content.empty()) {
    const auto size = static_cast<DWORD>(content.size() < largestPiece ? content.size() : largestPiece);
    DWORD written = 0;
    if (WriteFile(file, content.data(), size, &written, nullptr) == FALSE || written == 0) {
      return false;
    }
    content.remove_prefix(written);
  }
  return FlushFileBuffers(file) != FALSE;
}

bool writeNewFile(const std::string& path, std::string_view content) {
  const Handle file(
      CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  return file.isOpen() && writeAll(file.value(), content);
}

}  // namespace

char xplFileSystemMini::separator() {
  return '\\';
}

const char* xplFileSystemMini::lineEnd() {
  return "\r\n";
}

bool xplFileSystemMini::fileExists(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool xplFileSystemMini::folderExists(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool xplFileSystemMini::createFolder(const std::string& path) {
  return CreateDirectoryA(path.c_str(), nullptr) != FALSE;
}

bool xplFileSystemMini::emptyFile(const std::string& path) {
  return File(std::fopen(path.c_str(), "wb")) != nullptr;
}

bool xplFileSystemMini::appendToFile(const std::string& path, std::string_view text) {
  const File file(std::fopen(path.c_str(), "at"));
  return file != nullptr && std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
}

bool xplFileSystemMini::replaceFile(const std::string& path, std::string_view content,
                                    std::string& errorMessage) {
  const std::string next = path + ".new";
  if (writeNewFile(next, content) &&
      MoveFileExA(next.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
    return true;
  }
  errorMessage = messageOf(GetLastError());
  DeleteFileA(next.c_str());
  return false;
}

void xplWriteToDebugger(const char* text) {
  OutputDebugStringA(text);
}
