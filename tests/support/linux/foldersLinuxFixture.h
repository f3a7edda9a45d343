// What the tests of the folders on Linux share: a home folder of their own, and its user's environment.
#pragma once

#include <string>

#include <sys/stat.h>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/linux/temporaryEnvironment.h"

// A home folder of the test's own, and none of the variables that name other folders.
class FoldersLinux : public PrivateFolders {
 protected:
  void SetUp() override {
    xplFileSystemMini::redirectFolders("");
    ASSERT_EQ(mkdir(path("me").c_str(), 0700), 0);
    environment.set("HOME", path("me"));
    for (const char* name :
         {"TMPDIR", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
      environment.unset(name);
    }
  }
  void TearDown() override { xplFileSystemMini::redirectFolders(root()); }

  std::string path(const std::string& name) const { return root() + "/" + name; }
  static int modeOf(const std::string& file) {
    struct stat status {};
    return stat(file.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 07777) : -1;
  }
  std::string made(const std::string& name, mode_t mode) const {
    mkdir(path(name).c_str(), 0700);
    chmod(path(name).c_str(), mode);
    return path(name);
  }
  void givenUserDirs(const std::string& content) const {
    mkdir(path("me/.config").c_str(), 0700);
    writeFile(path("me/.config/user-dirs.dirs"), content);
  }

  TemporaryEnvironment environment;
};
