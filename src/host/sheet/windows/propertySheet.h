// The settings sheet on Windows: a property sheet of eight dialog pages.
#pragma once

#include "graphics/windows/gdi.h"
#include "host/sheet/settingsSheet.h"

// Shows the sheet over its owner (may be null) and returns when it is closed; the remembered page is written
// then. False where the system could not show it, which is logged.
bool showPropertySheet(HWND owner, SettingsSheet& sheet);
