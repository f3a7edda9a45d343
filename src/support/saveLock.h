// Lets one program at a time read, change and save a file, so that none undoes what another saved just then.
#pragma once

#include <memory>
#include <string>

// Held from construction to destruction, against other processes and other threads; a thread asks for one
// lock at a time. The system frees it when its holder ends, however that happens, and nothing is left on the
// disk.
class xplSaveLock {
 public:
  // How long another holder is waited for; milliseconds.
  static constexpr unsigned longestWait = 100;

  // path: of the file to save, in a folder that exists. Whoever does not get the lock saves without it: a
  // program that hangs must not keep another from saving. Where that was for the time, a warning is logged; a
  // file system without locks is none.
  explicit xplSaveLock(const std::string& path);
  ~xplSaveLock();
  xplSaveLock(const xplSaveLock&) = delete;
  xplSaveLock& operator=(const xplSaveLock&) = delete;

  bool isHeld() const { return m_held != nullptr; }

 private:
  class Held;  // the platform's lock

  static void reportLate(const std::string& path);

  std::unique_ptr<Held> m_held;  // null where the lock is not held
};
