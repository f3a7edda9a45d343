// The dialog that the framework shows for the configuration mode: it opens the settings and closes itself.
#pragma once

#include "graphics/windows/gdi.h"

// The framework finds both by these names.
extern "C" {

// The procedure of dialog 2003. TRUE stands for a handled message.
__declspec(dllexport) BOOL WINAPI
    ScreenSaverConfigureDialog(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// Called once before the dialog; there is nothing to register. TRUE: go on.
BOOL WINAPI RegisterDialogClasses(HANDLE instance);
}
