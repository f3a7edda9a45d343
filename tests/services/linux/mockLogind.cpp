// Implements the mock of logind: a helper program and the two pipes to it.
#include "services/linux/mockLogind.h"

#include <array>
#include <cerrno>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The interpreter for which the distribution packs the mock.
constexpr char interpreter[] = "/usr/bin/python3";

std::array<int, 2> makePipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    throw std::system_error(errno, std::generic_category(), "pipe");
  }
  return ends;
}

pid_t start(const char* kind, int input, int output) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  std::string name = interpreter;
  std::string script = LUNARIA_MOCK_LOGIND;
  std::string argument = kind;
  const std::array<char*, 4> arguments = {name.data(), script.data(), argument.data(), nullptr};
  pid_t process = -1;
  const int error = posix_spawn(&process, interpreter, &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) {
    throw std::system_error(error, std::generic_category(), interpreter);
  }
  return process;
}

}  // namespace

MockLogind::MockLogind(const char* kind) {
  const auto input = makePipe();
  const auto output = makePipe();
  m_process = start(kind, input[0], output[1]);
  close(input[0]);
  close(output[1]);
  m_input = fdopen(input[1], "w");
  m_output = fdopen(output[0], "r");
  const std::string address = hear();
  if (address.empty()) {
    throw std::runtime_error("no bus: install the packages python3-dbusmock and dbus-daemon");
  }
  m_environment.set("DBUS_SYSTEM_BUS_ADDRESS", address);
}

MockLogind::~MockLogind() {
  std::fclose(m_input);
  std::fclose(m_output);
  waitpid(m_process, nullptr, 0);
}

std::vector<std::string> MockLogind::inhibitors() {
  tell("list\n");
  std::vector<std::string> found;
  for (std::string line = hear(); line != "." && !line.empty(); line = hear()) {
    found.push_back(line);
  }
  return found;
}

bool MockLogind::isFree() {
  tell("empty\n");
  return hear() == "yes";
}

bool MockLogind::holdsOne() {
  tell("one\n");
  return hear() == "yes";
}

void MockLogind::tell(const char* line) {
  std::fputs(line, m_input);
  std::fflush(m_input);
}

// The next line without its end; empty where there is none.
std::string MockLogind::hear() {
  std::string line;
  for (int character = std::fgetc(m_output); character != EOF && character != '\n';
       character = std::fgetc(m_output)) {
    line += static_cast<char>(character);
  }
  return line;
}
