// A file descriptor that closes itself, with a write that is whole or fails.
#pragma once

#include <cerrno>
#include <string_view>
#include <utility>

#include <unistd.h>

class OpenFile {
 public:
  // Takes the descriptor over; a negative one stands for a file that could not be opened.
  explicit OpenFile(int descriptor) : m_descriptor(descriptor) {}
  OpenFile(OpenFile&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (isOpen()) {
      ::close(m_descriptor);
    }
  }

  bool isOpen() const { return m_descriptor >= 0; }
  int descriptor() const { return m_descriptor; }

  // Some file systems report a failed write only here. False, with errno set, when it failed.
  bool close() { return ::close(std::exchange(m_descriptor, -1)) == 0; }

  // Writes everything, or returns false with errno set.
  bool write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = ::write(m_descriptor, bytes.data(), bytes.size());
      if (written == 0 || (written < 0 && errno != EINTR)) {
        return false;
      }
      bytes.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return true;
  }

 private:
  int m_descriptor;
};
