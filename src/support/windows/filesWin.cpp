// The file operations on Windows.
#include <mutex>
#include <string>

#include "support/fileSystem.h"
#include "support/fileSystemPlatform.h"
#include "support/windows/fileHandle.h"
#include "support/windows/shellHeaders.h"

namespace {

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

// Windows itself lets no two appends end up at one place; Wine does, and one of two threads' lines in the log
// was lost now and then.
std::mutex& oneAppendAtATime() {
  static std::mutex mutex;
  return mutex;
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
  const std::lock_guard lock(oneAppendAtATime());
  const Handle file(openForWriting(path, FILE_APPEND_DATA | SYNCHRONIZE));
  return file.isOpen() && writeAll(file.value(), withLineEnds(text));
}

bool fileSystemPlatform::copyFile(const std::string& from, const std::string& to) {
  return CopyFileA(from.c_str(), to.c_str(), FALSE) != FALSE;
}

void xplWriteToDebugger(const char* text) {
  OutputDebugStringA(text);
}
