// The lock for saving on Linux: an advisory lock on the folder of the file, since the file itself is
// replaced.
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>

#include "support/clock.h"
#include "support/fileSystem.h"
#include "support/linux/openFile.h"
#include "support/saveLock.h"

namespace {

constexpr unsigned waitStep = 1;  // milliseconds

OpenFile openFolderOf(const std::string& path) {
  const std::string folder = xplFileSystemMini::folderOf(path);
  return OpenFile(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

enum class Outcome { locked, busy, impossible };

Outcome tryLock(const OpenFile& folder) {
  if (flock(folder.descriptor(), LOCK_EX | LOCK_NB) == 0) {
    return Outcome::locked;
  }
  return errno == EWOULDBLOCK || errno == EINTR ? Outcome::busy : Outcome::impossible;
}

// Who waits puts a lock of another kind on the folder, as a sign. A folder, which is open for reading alone,
// can carry no other than this shared one.
void showWaiting(const OpenFile& folder, bool isWaiting) {
  struct flock sign {};
  sign.l_type = isWaiting ? F_RDLCK : F_UNLCK;
  fcntl(folder.descriptor(), F_OFD_SETLK, &sign);
}

bool someoneWaits(const OpenFile& folder) {
  struct flock sign {};
  sign.l_type = F_WRLCK;  // what the sign of another would be in the way of
  return fcntl(folder.descriptor(), F_OFD_GETLK, &sign) == 0 && sign.l_type != F_UNLCK;
}

// One program that saves over and over would hardly ever leave the lock to another, which looks for it only
// now and then. So whoever comes after one who waits begins by waiting, too.
Outcome lockInTurn(const OpenFile& folder) {
  Outcome outcome = someoneWaits(folder) ? Outcome::busy : tryLock(folder);
  if (outcome != Outcome::busy) {
    return outcome;
  }
  showWaiting(folder, true);
  for (unsigned waited = 0; outcome == Outcome::busy && waited < xplSaveLock::longestWait;
       waited += waitStep) {
    xplClock::sleep(waitStep);
    outcome = tryLock(folder);
  }
  showWaiting(folder, false);
  return outcome;
}

}  // namespace

class xplSaveLock::Held {
 public:
  explicit Held(OpenFile folder) : m_folder(std::move(folder)) {}
  // Closing alone would leave the lock to a copy of this process that was made meanwhile.
  ~Held() { flock(m_folder.descriptor(), LOCK_UN); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  OpenFile m_folder;
};

xplSaveLock::xplSaveLock(const std::string& path) {
  OpenFile folder = openFolderOf(path);
  const Outcome outcome = folder.isOpen() ? lockInTurn(folder) : Outcome::impossible;
  if (outcome == Outcome::locked) {
    m_held = std::make_unique<Held>(std::move(folder));
  } else if (outcome == Outcome::busy) {
    reportLate(path);
  }
}

xplSaveLock::~xplSaveLock() = default;
