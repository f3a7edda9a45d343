// Looks at the display that the saver would run on.
#pragma once

#include "host/linux/doctor/systemView.h"

// Chosen as a run without an option chooses it. Waits for the display's answers.
DisplayView lookAtDisplay();
