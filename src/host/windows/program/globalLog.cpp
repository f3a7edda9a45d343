// The log of a run on Windows: made before WinMain, so that whichever framework is linked finds it.
#include "support/log.h"

namespace {

// No other object of static life writes to the log, so the order among them does not matter.
const xplLog programLog("Lunaria", true, true);

}  // namespace
