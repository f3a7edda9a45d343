// The framework's preparations on Linux: the canonical arguments, and a message pump that holds the timers.
#include "host/hostEnvironment.h"
#include "host/linux/messagePump.h"
#include "host/windowProcedure.h"
#include "support/platform.h"

struct HostEnvironment::Parts {
  explicit Parts(xplWindowHandle window) : pump(window, WindowKind::fullRun, ScreenSaverProc) {}
  MessagePump pump;
};

HostEnvironment::HostEnvironment(xplWindowHandle window) {
  xplAppLinux::setArguments({"lunaria", "/s"});
  m_parts = std::make_unique<Parts>(window);
}

HostEnvironment::~HostEnvironment() {
  m_parts.reset();
  xplAppLinux::setArguments({});
}
