// The processor time that the process takes.
#pragma once

// Of all its threads since its start, their time in the kernel included; in seconds.
double processorSeconds();
