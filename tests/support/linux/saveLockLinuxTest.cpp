// Tests the lock for saving between processes on Linux.
#include <csignal>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

#include "support/saveLock.h"
#include "support/savers.h"

namespace {

// A copy of this process that does something and ends.
pid_t startProcess(const std::function<void()>& work) {
  const pid_t process = fork();
  if (process == 0) {
    work();
    _exit(0);
  }
  return process;
}

int statusAtEndOf(pid_t process) {
  int status = -1;
  waitpid(process, &status, 0);
  return status;
}

class SaveLockOfProcesses : public Savers {};

TEST_F(SaveLockOfProcesses, TwoThatSaveAtOnceLoseNothing) {
  const pid_t one = startProcess([] { saveAllKeysOf("one"); });
  const pid_t other = startProcess([] { saveAllKeysOf("other"); });
  EXPECT_EQ(statusAtEndOf(one), 0);
  EXPECT_EQ(statusAtEndOf(other), 0);
  if (someSaverWasLate()) {
    GTEST_SKIP() << "the machine is too busy: a save took longer than it is waited for";
  }
  expectAllKeysOf("one", "other");
}

TEST_F(SaveLockOfProcesses, IsFreeWhenItsHolderWasKilled) {
  given("");
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t holder = startProcess([&] {
    const xplSaveLock lock(file());
    const char isHeld = lock.isHeld() ? 'y' : 'n';
    if (write(ends[1], &isHeld, 1) == 1) {
      pause();
    }
  });
  char isHeld = 0;
  ASSERT_EQ(read(ends[0], &isHeld, 1), 1);
  EXPECT_EQ(isHeld, 'y');
  kill(holder, SIGKILL);
  EXPECT_TRUE(WIFSIGNALED(statusAtEndOf(holder)));
  EXPECT_TRUE(xplSaveLock(file()).isHeld());
  close(ends[0]);
  close(ends[1]);
}

// The sign of one who waits goes with it, too.
TEST_F(SaveLockOfProcesses, IsFreeWhenOneWhoWaitedWasKilled) {
  given("");
  auto held = std::make_unique<xplSaveLock>(file());
  const pid_t waiting = startProcess([&] { const xplSaveLock lock(file()); });
  kill(waiting, SIGKILL);
  statusAtEndOf(waiting);
  held.reset();
  EXPECT_TRUE(xplSaveLock(file()).isHeld());
}

}  // namespace
