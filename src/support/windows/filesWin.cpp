// The file operations on Windows.
#include <array>
#include <atomic>
#include <string>

#include "support/fileSystem.h"
#include "support/fileSystemPlatform.h"
#include "support/windows/shellHeaders.h"

namespace {

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
  return true;
}

// Opens a file for writing, made where there was none. A link is opened itself and then refused.
HANDLE openForWriting(const std::string& path, DWORD access) {
  const HANDLE file =
      CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  BY_HANDLE_FILE_INFORMATION information{};
  if (file != INVALID_HANDLE_VALUE && (GetFileInformationByHandle(file, &information) == FALSE ||
                                       (information.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)) {
    CloseHandle(file);
    return INVALID_HANDLE_VALUE;
  }
  return file;
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

// A text with the line ends of a text file.
std::string withLineEnds(std::string_view text) {
  std::string result;
  result.reserve(text.size() + 2);
  for (const char character : text) {
    result += character == '\n' ? "\r\n" : std::string(1, character);
  }
  return result;
}

}  // namespace

char xplFileSystemMini::separator() {
  return '\\';
}

bool xplFileSystemMini::isSeparator(char character) {
  return character == '\\' || character == '/';
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
  const Handle file(openForWriting(path, GENERIC_WRITE));
  return file.isOpen() && SetEndOfFile(file.value()) != FALSE;
}

bool xplFileSystemMini::appendToFile(const std::string& path, std::string_view text) {
  const Handle file(openForWriting(path, FILE_APPEND_DATA | SYNCHRONIZE));
  return file.isOpen() && writeAll(file.value(), withLineEnds(text));
}

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
  if (written && MoveFileExA(next.c_str(), target.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
    return true;
  }
  errorMessage = messageOf(GetLastError());
  if (written) {
    DeleteFileA(next.c_str());
  }
  return false;
}

bool fileSystemPlatform::copyFile(const std::string& from, const std::string& to) {
  return CopyFileA(from.c_str(), to.c_str(), FALSE) != FALSE;
}

void xplWriteToDebugger(const char* text) {
  OutputDebugStringA(text);
}
