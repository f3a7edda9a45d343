// Knows when the program was built: when this file was compiled, as the log's own stamp tells of its file.
#include "services/telemetryValues.h"

std::string telemetryValues::buildStamp() {
  return __DATE__ "  " __TIME__;
}
