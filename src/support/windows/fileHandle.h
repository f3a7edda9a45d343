// A file's handle on Windows that closes itself, and a write that is whole or fails.
#pragma once

#include <string_view>

#include "support/windows/shellHeaders.h"

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

// Writes everything; false, with the last error set, where it could not.
inline bool writeAll(HANDLE file, std::string_view content) {
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
