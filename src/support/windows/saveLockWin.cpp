// The lock for saving on Windows: a mutex with the file's name.
#include <algorithm>

#include "support/saveLock.h"
#include "support/windows/shellHeaders.h"

namespace {

// For all sessions of the computer, since the file is the same in all. A backslash would part the name.
std::string mutexNameOf(const std::string& path) {
  constexpr std::size_t longest = 200;  // characters; the system takes 260 with the rest
  std::string name = path.size() > longest ? path.substr(path.size() - longest) : path;
  std::ranges::replace(name, '\\', '/');
  return "Global\\Saving " + name;
}

}  // namespace

class xplSaveLock::Held {
 public:
  // Takes over a mutex that this thread owns.
  explicit Held(HANDLE mutex) : m_mutex(mutex) {}
  ~Held() {
    ReleaseMutex(m_mutex);
    CloseHandle(m_mutex);
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  HANDLE m_mutex;
};

xplSaveLock::xplSaveLock(const std::string& path) {
  HANDLE mutex = CreateMutexA(nullptr, FALSE, mutexNameOf(path).c_str());
  if (mutex == nullptr) {
    return;
  }
  const DWORD result = WaitForSingleObject(mutex, longestWait);
  // Abandoned: its owner ended while saving. The file is whole all the same, since it is replaced in one
  // step.
  if (result == WAIT_OBJECT_0 || result == WAIT_ABANDONED) {
    m_held = std::make_unique<Held>(mutex);
    return;
  }
  CloseHandle(mutex);
  if (result == WAIT_TIMEOUT) {
    reportLate(path);
  }
}

xplSaveLock::~xplSaveLock() = default;
