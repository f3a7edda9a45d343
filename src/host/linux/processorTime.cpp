// Asks the system for the process's processor time.
#include "host/linux/processorTime.h"

#include <sys/resource.h>

namespace {

double secondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

double processorSeconds() {
  rusage usage{};
  // It cannot fail for the process itself.
  ::getrusage(RUSAGE_SELF, &usage);
  return secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
}
