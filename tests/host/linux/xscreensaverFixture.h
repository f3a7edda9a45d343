// What the tests of the installation into XScreenSaver share: a program, a home, and its preferences file.
#pragma once

#include <filesystem>
#include <string>

#include "harness/privateFolders.h"
#include "host/linux/hostFailure.h"
#include "host/linux/xscreensaver/xscreensaver.h"
#include "support/fileSystem.h"

class Xscreensaver : public PrivateFolders {
 protected:
  Xscreensaver() {
    std::filesystem::create_directories(root() + "/bin");
    writeFile(program, "#!/bin/sh\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  }

  std::string install() const { return installInXScreenSaver(program); }
  // What is said where the work is refused.
  std::string refusal() const {
    try {
      return "no refusal: " + install();
    } catch (const HostFailure& failure) {
      return failure.what();
    }
  }
  static std::string refusalToTakeOut() {
    try {
      return "no refusal: " + uninstallFromXScreenSaver();
    } catch (const HostFailure& failure) {
      return failure.what();
    }
  }
  std::string content() const { return readFile(path); }

  const std::string program = root() + "/bin/lunaria";
  const std::string home = xplFileSystemMini::getFolder_UserHome();
  const std::string path = home + "/.xscreensaver";
  const std::string before =
      "mode:\trandom\nselected:\t0\nprograms:\\\n\t\tmaze --root \\n\\\n\ntimeout: 0:10:00\n";
  const std::string after = "mode:\tone\nselected:\t1\nprograms:\\\n\t\tmaze --root \\n\\\n\t\t\t\t" +
                            program + " --root\t\t\t\t    \\n\\\n\ntimeout: 0:10:00\n";
};
