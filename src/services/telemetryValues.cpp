// Knows when the program was built. Alone in its file, since it is compiled anew with every build of it.
#include "services/telemetryValues.h"

std::string telemetryValues::buildStamp() {
  return __DATE__ "  " __TIME__;
}
