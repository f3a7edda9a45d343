// Implements the start of the settings sheet.
#include "host/linux/configureProgram.h"

#include <cerrno>
#include <cstring>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "host/linux/hostFailure.h"
#include "support/fileSystem.h"
#include "support/log.h"

namespace {

// A name without a folder is looked up on the PATH.
std::string findProgram(const std::string& name) {
  const std::string beside = xplFileSystemMini::joinPath(xplFileSystemMini::applicationFolder(), name);
  return xplFileSystemMini::fileExists(beside) ? beside : name;
}

pid_t start(const std::string& name) {
  std::string program = findProgram(name);
  logInfo().add("starting: " + program);
  char* arguments[] = {program.data(), nullptr};
  pid_t child = 0;
  const int error = posix_spawnp(&child, program.c_str(), nullptr, nullptr, arguments, environ);
  if (error != 0) {
    throw HostFailure("cannot start " + name + ", the program that shows the settings (" +
                      std::strerror(error) + "): install it beside this one");
  }
  return child;
}

int awaitEnd(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) {
      throw HostFailure(std::string("the settings cannot be waited for: ") + std::strerror(errno));
    }
  }
  return status;
}

}  // namespace

void runConfigureProgram(const std::string& name) {
  const int status = awaitEnd(start(name));
  if (WIFSIGNALED(status)) {
    throw HostFailure(name + " was ended by signal " + std::to_string(WTERMSIG(status)));
  }
  if (WEXITSTATUS(status) != 0) {
    throw HostFailure(name + " ended with exit code " + std::to_string(WEXITSTATUS(status)));
  }
}
