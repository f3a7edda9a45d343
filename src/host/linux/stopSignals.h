// The signals that ask the program to end, as something that a loop can wait for.
#pragma once

#include "host/linux/fileDescriptor.h"

// From its making on, SIGTERM, SIGINT and SIGHUP no longer end the process: they are kept until it looks.
// Make it before any thread, so that they go to nobody else. SIGPIPE is ignored: a display or a terminal that
// goes away shows as a failed write.
class StopSignals {
 public:
  StopSignals();

  // Readable once one of the signals has arrived; -1 where the system gives none.
  int descriptor() const { return m_descriptor.get(); }
  // True from the first of these signals on.
  bool arrived();
  // The signal that arrived last and the process that sent it; 0 before, and where it came from the system.
  int number() const { return m_number; }
  int sender() const { return m_sender; }

 private:
  FileDescriptor m_descriptor;
  bool m_arrived = false;
  int m_number = 0;
  int m_sender = 0;
};
