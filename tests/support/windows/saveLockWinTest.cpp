// Tests the lock for saving between processes on Windows.
#include <cstdlib>

#include "support/saveLock.h"
#include "support/savers.h"
#include "support/windows/shellHeaders.h"

namespace {

constexpr char folderVariable[] = "LUNARIA_TEST_SAVERS_FOLDER";
constexpr DWORD wasLate = 17;  // the code with which a saver ends that did not wait for the other
constexpr char saverVariable[] = "LUNARIA_TEST_SAVER";

// What a process of its own does; this program starts itself for it.
TEST(SaverProcess, DISABLED_Saves) {
  const char* folder = std::getenv(folderVariable);
  const char* saver = std::getenv(saverVariable);
  ASSERT_TRUE(folder != nullptr && saver != nullptr);
  xplFileSystemMini::redirectFolders(folder);
  const xplLog log(std::string("Saver ") + saver, false, false);
  saveAllKeysOf(saver);
  EXPECT_TRUE(logError().isEmpty());
  if (!logWarning().isEmpty()) {
    std::_Exit(wasLate);
  }
}

class SaveLockOfProcesses : public Savers {
 protected:
  HANDLE start(const char* saver) const {
    SetEnvironmentVariableA(folderVariable, root().c_str());
    SetEnvironmentVariableA(saverVariable, saver);
    std::string command = "\"" + xplFileSystemMini::applicationFullPath() +
                          "\" --gtest_also_run_disabled_tests --gtest_filter=SaverProcess.DISABLED_Saves";
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    EXPECT_NE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                             &process),
              FALSE);
    CloseHandle(process.hThread);
    return process.hProcess;
  }
  static DWORD codeAtEndOf(HANDLE process) {
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(process, INFINITE);
    GetExitCodeProcess(process, &code);
    CloseHandle(process);
    return code;
  }
};

TEST_F(SaveLockOfProcesses, TwoThatSaveAtOnceLoseNothing) {
  HANDLE one = start("one");
  HANDLE other = start("other");
  const DWORD codes[] = {codeAtEndOf(one), codeAtEndOf(other)};
  if (codes[0] == wasLate || codes[1] == wasLate) {
    GTEST_SKIP() << "the machine is too busy: a save took longer than it is waited for";
  }
  EXPECT_EQ(codes[0], 0U);
  EXPECT_EQ(codes[1], 0U);
  expectAllKeysOf("one", "other");
}

}  // namespace
