// The seam of the support library: what a platform supplies to it, and under which common names.
//
// Whoever writes the next platform supplies: the functions of fileSystemPlatform.h; the file operations,
// separator, isSeparator and lineEnd of xplFileSystemMini; xplSaveLock; xplWriteToDebugger; xplClock's
// localTime, universalTime and momentOfLocalTime; and an application class derived from xplAppBase.
#pragma once

#if defined(_WIN32)
#include "support/windows/applicationWin.h"
using xplAppPlatform = xplAppWin;
#else
#include "support/linux/applicationLinux.h"
using xplAppPlatform = xplAppLinux;
#endif

// The application object of this platform; it logs the command line when it is made.
class xplApp : public xplAppPlatform {};
