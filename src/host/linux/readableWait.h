// Waits for what a display server sends, and gives up as soon as the program is to end.
#pragma once

#include "host/linux/stopSignals.h"

// Waits until the descriptor is readable, or closed at its other end: then true. False where one of the
// signals has arrived, before or meanwhile, or waiting fails. Without signals (null) nothing else ends the
// wait.
bool waitUntilReadable(int descriptor, StopSignals* signals);
