// Keeps the computer awake on Linux: an inhibitor of logind, over the system bus.
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include <systemd/sd-bus.h>

#include "services/keepAwake.h"
#include "support/linux/openFile.h"

class KeepAwakeLinux : public xpliKeepAwake {
 public:
  // answerTimeout: when an answer that has not come counts as a refusal.
  explicit KeepAwakeLinux(std::chrono::milliseconds answerTimeout = std::chrono::seconds(25));
  ~KeepAwakeLinux() override;

  // Waits for the answer a moment, and lets it come later where it takes longer.
  bool request() override;
  bool wasRefused() override;
  // Closes the descriptor that logind gave; the computer may sleep from then on.
  void release() override;

  // The computer is kept awake.
  bool isGranted() const { return m_state == State::granted; }
  // Why the last request was refused; "" where none was.
  const std::string& refusal() const { return m_refusal; }

  // The longest that request() waits: no frame shall be late for it.
  static constexpr std::chrono::milliseconds longestWait{60};

 private:
  struct CloseBus {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
  };
  using Bus = std::unique_ptr<sd_bus, CloseBus>;
  enum class State { idle, asked, granted, refused };

  static int answered(sd_bus_message* message, void* self, sd_bus_error* error);
  void takeAnswer(sd_bus_message& message);
  bool ask();
  void waitForAnswer();
  void process();
  void refuse(const std::string& reason);

  std::chrono::milliseconds m_answerTimeout;
  std::chrono::steady_clock::time_point m_askedAt;
  Bus m_bus;
  State m_state = State::idle;
  std::string m_refusal;
  std::optional<OpenFile> m_inhibitor;  // held: the computer stays awake
};
