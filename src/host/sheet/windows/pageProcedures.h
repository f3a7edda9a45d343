// The dialog procedures of the sheet's pages.
#pragma once

#include <array>

#include "graphics/windows/gdi.h"
#include "host/sheet/controlIds.h"

// By position. Each finds its SettingsSheet in the lParam of its page's description.
std::array<DLGPROC, pageCount> pageProcedures();
