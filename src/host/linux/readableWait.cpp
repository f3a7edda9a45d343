// Implements the wait for a display server.
#include "host/linux/readableWait.h"

#include <cerrno>

#include <poll.h>

bool waitUntilReadable(int descriptor, StopSignals* signals) {
  pollfd waits[] = {{descriptor, POLLIN, 0}, {signals != nullptr ? signals->descriptor() : -1, POLLIN, 0}};
  for (;;) {
    if (signals != nullptr && signals->arrived()) {
      return false;
    }
    if (::poll(waits, 2, -1) > 0) {
      return waits[1].revents == 0;
    }
    if (errno != EINTR && errno != EAGAIN) {
      return false;
    }
  }
}
