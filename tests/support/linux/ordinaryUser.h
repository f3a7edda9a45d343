// Runs the rest of a test as a user whom permission bits bind, also when the tests run as root.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <unistd.h>

// Gives everything below the folder to an ordinary user and becomes that user until the object goes.
// Where the tests run as an ordinary user already, nothing happens.
class OrdinaryUser {
 public:
  explicit OrdinaryUser(const std::string& folder) : m_wasRoot(geteuid() == 0) {
    if (m_wasRoot) {
      m_ready = give(folder);
      for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        m_ready = give(entry.path().string()) && m_ready;
      }
      m_ready = m_ready && seteuid(userId) == 0;
    }
  }
  ~OrdinaryUser() {
    if (m_wasRoot && seteuid(0) != 0) {
      std::abort();  // the tests that follow must not run as somebody else
    }
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

  // False where the system did not let the test become another user, or that user cannot reach the folder.
  bool canUse(const std::string& folder) const {
    return m_ready && faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) == 0;
  }

 private:
  static constexpr uid_t userId = 65534;
  static bool give(const std::string& path) {
    return lchown(path.c_str(), userId, static_cast<gid_t>(-1)) == 0;
  }

  bool m_wasRoot;
  bool m_ready = true;
};
