// Keeps the computer awake on Linux: an inhibitor of logind, over the system bus.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <systemd/sd-bus.h>

#include "services/keepAwake.h"
#include "support/linux/openFile.h"

class KeepAwakeLinux : public xpliKeepAwake {
 public:
  KeepAwakeLinux();
  ~KeepAwakeLinux() override;

  // Waits for the answer a moment, and lets it come later where it takes longer.
  bool request() override;
  bool wasRefused() override;
  // Closes the descriptor that logind gave; the computer may sleep from then on.
  void release() override;

  // The longest that request() waits, in milliseconds: no frame shall be late for it.
  static constexpr unsigned longestWait = 60;
  // When an answer that has not come counts as a refusal, in milliseconds.
  static constexpr unsigned answerTimeout = 25'000;

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

  Bus m_bus;
  State m_state = State::idle;
  std::optional<OpenFile> m_inhibitor;  // held: the computer stays awake
};
