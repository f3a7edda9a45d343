// Implements the waiting for signals with a descriptor of its own.
#include "host/linux/stopSignals.h"

#include <csignal>

#include <sys/signalfd.h>

StopSignals::StopSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
    sigaddset(&signals, number);
  }
  m_descriptor = FileDescriptor(::signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC));
  if (m_descriptor.isOpen()) {
    sigprocmask(SIG_BLOCK, &signals, nullptr);
  }
  std::signal(SIGPIPE, SIG_IGN);
}

bool StopSignals::arrived() {
  signalfd_siginfo information{};
  while (m_descriptor.isOpen() && ::read(m_descriptor.get(), &information, sizeof information) > 0) {
    m_arrived = true;
    m_number = static_cast<int>(information.ssi_signo);
    m_sender = static_cast<int>(information.ssi_pid);
  }
  return m_arrived;
}
