// What the lock for saving says on every platform.
#include "support/saveLock.h"

#include "support/log.h"

void xplSaveLock::reportLate(const std::string& path) {
  logWarning().addf("another program has been saving for more than %u milliseconds and is not waited for:%s",
                    longestWait, path.c_str());
}
