// Implements the inhibitor.
#include "services/linux/keepAwakeLinux.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <system_error>
#include <utility>

#include <fcntl.h>

#include "services/platform.h"
#include "support/log.h"

namespace {

std::string messageOf(int errorNumber) {
  return std::generic_category().message(errorNumber < 0 ? -errorNumber : errorNumber);
}

}  // namespace

std::unique_ptr<xpliKeepAwake> xplMakeKeepAwake() {
  return std::make_unique<KeepAwakeLinux>();
}

KeepAwakeLinux::KeepAwakeLinux(std::chrono::milliseconds answerTimeout) : m_answerTimeout(answerTimeout) {}
KeepAwakeLinux::~KeepAwakeLinux() = default;

bool KeepAwakeLinux::request() {
  release();
  if (ask()) {
    waitForAnswer();
  }
  if (m_state == State::refused) {
    m_state = State::idle;
    return false;
  }
  return m_state != State::idle;
}

bool KeepAwakeLinux::wasRefused() {
  if (m_state == State::asked) {
    process();
  }
  if (m_state == State::asked && std::chrono::steady_clock::now() - m_askedAt >= m_answerTimeout) {
    m_bus.reset();
    refuse("no answer");
  }
  if (m_state != State::refused) {
    return false;
  }
  m_state = State::idle;
  return true;
}

void KeepAwakeLinux::release() {
  m_inhibitor.reset();
  m_bus.reset();  // an answer that is still under way goes with it, and its descriptor too
  m_state = State::idle;
}

// Opening and asking wait for nothing: what is to be sent goes out while the answer is waited for.
bool KeepAwakeLinux::ask() {
  sd_bus* opened = nullptr;
  int result = sd_bus_open_system_with_description(&opened, "lunaria");
  if (result >= 0) {
    m_bus.reset(opened);
    m_state = State::asked;
    m_askedAt = std::chrono::steady_clock::now();
    result = sd_bus_call_method_async(opened, nullptr, "org.freedesktop.login1", "/org/freedesktop/login1",
                                      "org.freedesktop.login1.Manager", "Inhibit", answered, this, "ssss",
                                      "idle:sleep", "Lunaria", "The screen saver keeps the computer awake",
                                      "block");
  }
  if (result < 0) {
    refuse(messageOf(result));
  }
  return result >= 0;
}

void KeepAwakeLinux::waitForAnswer() {
  using Clock = std::chrono::steady_clock;
  const auto end = m_askedAt + longestWait;
  for (process(); m_state == State::asked; process()) {
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(end - Clock::now()).count();
    if (left <= 0) {
      logInfo().add("sleep is asked to be prevented: the answer is still to come");
      return;
    }
    const int result = sd_bus_wait(m_bus.get(), static_cast<std::uint64_t>(left));
    if (result < 0 && result != -EINTR) {
      refuse(messageOf(result));
    }
  }
}

// Handles what has come, and waits for nothing.
void KeepAwakeLinux::process() {
  int result = 0;
  do {
    result = sd_bus_process(m_bus.get(), nullptr);
  } while (result > 0 && m_state == State::asked);
  if (result < 0 && m_state == State::asked) {
    refuse(messageOf(result));
  }
  if (m_state != State::asked) {
    m_bus.reset();  // the descriptor alone holds the computer awake
  }
}

int KeepAwakeLinux::answered(sd_bus_message* message, void* self, sd_bus_error* /*error*/) {
  static_cast<KeepAwakeLinux*>(self)->takeAnswer(*message);
  return 0;
}

void KeepAwakeLinux::takeAnswer(sd_bus_message& message) {
  if (const sd_bus_error* error = sd_bus_message_get_error(&message)) {
    refuse(error->message != nullptr ? error->message : error->name);
    return;
  }
  int descriptor = -1;
  const int result = sd_bus_message_read(&message, "h", &descriptor);
  if (result < 0) {
    refuse(messageOf(result));
    return;
  }
  m_inhibitor.emplace(fcntl(descriptor, F_DUPFD_CLOEXEC, 0));  // the message takes its own away
  if (m_inhibitor->isOpen()) {
    m_state = State::granted;
  } else {
    refuse(messageOf(errno));
  }
}

void KeepAwakeLinux::refuse(const std::string& reason) {
  logWarning().addf("sleep cannot be prevented: %s", reason.c_str());
  m_refusal = reason;
  m_state = State::refused;
}
