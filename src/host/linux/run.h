// The saver's run from the first question to the display to the last line of the log.
#pragma once

#include <string>

#include "host/linux/commandLine.h"
#include "host/linux/saverDisplay.h"
#include "host/linux/stopSignals.h"

// Shows the saver until input or a signal ends it. Returns in order where a signal came before the window was
// there. Throws HostFailure where the saver cannot start, or where its window or its display was taken away.
// program: the program's own name; the application object gets it, and the arguments of what the run turns
// out to be on this display.
void runSaver(SaverDisplay& display, StopSignals& signals, const std::string& program,
              const HostRequest& request);

// Lets the user edit the settings, and returns when the sheet is closed. Throws HostFailure where there is
// none.
void runConfiguration();
