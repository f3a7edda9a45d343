// The words for what those who start screen savers do with Lunaria.
#pragma once

#include <string>

#include "host/linux/doctor/finding.h"
#include "host/linux/doctor/saverSettings.h"

namespace saverTexts {

// " after 1 minute", " after 10 minutes".
std::string after(int minutes);

// XScreenSaver runs, with these settings.
Finding ofXScreenSaver(const XScreenSaverSettings& settings);

// XScreenSaver runs and is to show Lunaria, but cannot start this program of its list.
Finding ofMissingProgram(const std::string& program);

}  // namespace saverTexts
