// Implements the dialog of the configuration mode.
#include "host/windows/configureDialog.h"

#include "host/windowProcedure.h"
#include "support/log.h"

namespace {

// Runs the settings on a saver of their own, then tells the dialog to close as with OK.
void showSettings(HWND dialog) {
  logInfo().add("ScreenSaverConfigureDialog received WM_INITDIALOG");
  {
    const auto saver = windowProcedure::makeScreenSaver();
    if (saver && saver->hasConfigureSheet()) {
      saver->showConfigureSheet(dialog);
    }
  }
  PostMessageA(dialog, WM_COMMAND, IDOK, 0);
}

void endWith(HWND dialog, WORD button) {
  if (button == IDOK || button == IDCANCEL) {
    EndDialog(dialog, button == IDOK ? TRUE : FALSE);
  }
}

// Deliberate: a dialog procedure answers FALSE to what it does not handle; this one says TRUE, and the dialog
// manager then does nothing of its own. The dialog is never seen, and its quick end depends on nothing else
// being done with it. Do not change the answer.
constexpr BOOL answerToUnhandled = TRUE;

}  // namespace

BOOL WINAPI ScreenSaverConfigureDialog(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  switch (message) {
    case WM_INITDIALOG:
      showSettings(dialog);
      return TRUE;
    case WM_COMMAND:
      endWith(dialog, LOWORD(wParam));
      return TRUE;
    case WM_DESTROY:
      logInfo().add("xplLog closing");
      return FALSE;
    default:
      return answerToUnhandled;
  }
}

BOOL WINAPI RegisterDialogClasses(HANDLE) {
  return TRUE;
}
