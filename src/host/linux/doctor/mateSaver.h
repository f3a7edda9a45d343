// What MATE's own screen saver does with Lunaria.
#pragma once

#include "host/linux/doctor/finding.h"
#include "host/linux/doctor/systemView.h"

// It runs; its settings are asked of MATE's settings tool.
Finding lookAtMate(SystemView& system);
