// Tests the start of the program that shows the settings.
#include <cstdio>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "harness/privateFolders.h"
#include "host/linux/configureProgram.h"
#include "host/linux/hostFailure.h"
#include "support/fileSystem.h"

using testing::HasSubstr;

namespace {

// Puts a script beside the test program, as the real one lies beside the saver.
class ConfigureProgram : public PrivateFolders {
 protected:
  ConfigureProgram() { path = xplFileSystemMini::joinPath(xplFileSystemMini::applicationFolder(), name); }
  ~ConfigureProgram() override { std::remove(path.c_str()); }
  void write(const std::string& script) const {
    writeFile(path, "#!/bin/sh\n" + script + "\n");
    chmod(path.c_str(), S_IRWXU);
  }
  std::string failure() const {
    try {
      runConfigureProgram(name);
      return "";
    } catch (const HostFailure& error) {
      return error.what();
    }
  }

  const std::string name = "lunaria-configure-test-" + std::to_string(getpid());
  std::string path;
};

TEST_F(ConfigureProgram, RunsTheOneBesideAndWaitsForItsEnd) {
  const std::string trace = root() + "/trace";
  write("sleep 0.1; echo \"$# arguments\" > '" + trace + "'");
  runConfigureProgram(name);
  EXPECT_EQ(readFile(trace), "0 arguments\n");
  EXPECT_EQ(countEntries("starting: " + path), 1);
}

TEST_F(ConfigureProgram, OneOnThePathIsFoundToo) {
  EXPECT_NO_THROW(runConfigureProgram("true"));
}

TEST_F(ConfigureProgram, AMissingOneIsNamed) {
  EXPECT_THAT(failure(), HasSubstr("cannot start " + name));
}

TEST_F(ConfigureProgram, OneThatFailsIsTold) {
  write("exit 3");
  EXPECT_EQ(failure(), name + " ended with exit code 3");
}

TEST_F(ConfigureProgram, OneThatIsKilledIsTold) {
  write("kill -9 $$");
  EXPECT_EQ(failure(), name + " was ended by signal 9");
}

}  // namespace
