// Implements processes with a time limit.
#include "host/linux/doctor/boundedChild.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include "host/linux/fileDescriptor.h"
#include "support/timeCounter.h"

namespace {

constexpr std::size_t mostBytes = 65536;
constexpr int failed = 127;

// Reads until the other side closes. False where that takes longer, or it writes too much.
bool readAll(int input, int milliseconds, std::string& text) {
  const xplTimeCounter counter;
  while (text.size() <= mostBytes) {
    const int left = milliseconds - static_cast<int>(counter.seconds() * 1000.0);
    pollfd wait{input, POLLIN, 0};
    const int ready = left > 0 ? ::poll(&wait, 1, left) : 0;
    if (ready == 0 || (ready < 0 && errno != EINTR)) {
      return false;
    }
    std::array<char, 4096> piece{};
    const ssize_t count = ready > 0 ? ::read(input, piece.data(), piece.size()) : -1;
    if (count == 0) {
      return true;
    }
    text.append(piece.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  }
  return false;
}

bool endedWell(pid_t child) {
  int status = 0;
  while (::waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) {
      return false;
    }
  }
  return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

int become(int output, std::vector<std::string>& command) {
  const int nowhere = ::open("/dev/null", O_RDWR);
  if (nowhere < 0 || ::dup2(nowhere, STDIN_FILENO) < 0 || ::dup2(nowhere, STDERR_FILENO) < 0 ||
      ::dup2(output, STDOUT_FILENO) < 0) {
    return failed;
  }
  std::vector<char*> words;
  words.reserve(command.size() + 1);
  for (std::string& word : command) {
    words.push_back(word.data());
  }
  words.push_back(nullptr);
  ::execvp(words[0], words.data());
  return failed;
}

}  // namespace

std::optional<std::string> runBounded(int milliseconds, const std::function<int(int output)>& work) {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
    return std::nullopt;
  }
  const FileDescriptor input(ends[0]);
  FileDescriptor output(ends[1]);
  const pid_t child = ::fork();
  if (child == 0) {
    // Without the parent's closing steps: its buffers and its log are not the child's.
    ::_exit(work(output.get()));
  }
  output = FileDescriptor();
  std::string text;
  const bool isComplete = child > 0 && readAll(input.get(), milliseconds, text);
  if (child > 0 && !isComplete) {
    ::kill(child, SIGKILL);
  }
  return child > 0 && endedWell(child) && isComplete ? std::optional(text) : std::nullopt;
}

std::optional<std::string> runBounded(int milliseconds, std::vector<std::string> command) {
  return runBounded(milliseconds, [&](int output) { return become(output, command); });
}
