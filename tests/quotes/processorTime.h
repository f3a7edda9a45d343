// How long the program itself has worked, whatever else the machine does meanwhile.
#pragma once

// Milliseconds of processor time since the program began.
double processorTimeMs();
