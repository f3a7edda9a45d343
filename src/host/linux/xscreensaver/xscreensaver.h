// Makes Lunaria the saver that XScreenSaver shows, and takes it away from there again.
#pragma once

#include <string>

// Each returns what it has done, in lines for the user, and throws HostFailure where it cannot; the user's
// files are then as they were. A running XScreenSaver notices the change by itself.

// Adds Lunaria to the list in ~/.xscreensaver, which is made where it is missing, and chooses it alone.
// program: the full path of the saver's program.
std::string installInXScreenSaver(const std::string& program);

// Takes Lunaria out of ~/.xscreensaver. All else in there stays byte for byte; what was chosen before Lunaria
// is chosen again, unless the user has chosen something else since.
std::string uninstallFromXScreenSaver();
