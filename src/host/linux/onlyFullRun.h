// Lets one full run of a user show on a display, as the menu's entry and an idle watcher may start two.
#pragma once

#include <string>

#include "host/linux/fileDescriptor.h"

// Holds the place of the one full run for as long as it lives: through a locked file in the user's temporary
// folder, which goes with it. The system takes the lock from a run that is killed, too.
class OnlyFullRun {
 public:
  // display: the name of the display as the environment gives it, such as ":0" or "wayland-1".
  explicit OnlyFullRun(const std::string& display);
  OnlyFullRun(const OnlyFullRun&) = delete;
  OnlyFullRun& operator=(const OnlyFullRun&) = delete;
  ~OnlyFullRun();

  // False where another run has the place. True also where no such file can be made: two skies over each
  // other are better than none.
  bool isOurs() const { return m_isOurs; }

  // The file's full path; "" where there is no temporary folder.
  static std::string pathFor(const std::string& display);

 private:
  std::string m_path;
  FileDescriptor m_file;
  bool m_isOurs;
};
