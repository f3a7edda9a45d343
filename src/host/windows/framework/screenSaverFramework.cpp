// The program's entry on Windows where the toolchain has no screen saver library of its own: it reads the
// command line and starts the full run, the preview or the configuration.
#include <memory>
#include <string>
#include <vector>

#include "graphics/windows/gdi.h"
// After it, since it needs its types.
#include <commctrl.h>

#include "host/windows/configureDialog.h"
#include "host/windows/framework/commandLine.h"
#include "host/windows/framework/displayState.h"
#include "host/windows/framework/saverWindow.h"

namespace {

constexpr WORD configureDialog = 2003;

// Exit codes.
constexpr int ended = 0;
constexpr int failed = 1;

struct CloseHandleOf {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, CloseHandleOf>;

// What a console's Ctrl+C or its end needs, from a thread of its own: whom to tell, and when all is done.
HWND runningWindow = nullptr;
HANDLE runHasEnded = nullptr;

BOOL WINAPI endOnConsoleSignal(DWORD) {
  constexpr DWORD patience = 4000;  // milliseconds; the system waits five seconds
  PostMessageA(runningWindow, WM_CLOSE, 0, 0);
  WaitForSingleObject(runHasEnded, patience);
  return TRUE;
}

// Runs a window's messages, and ends it in order when the console that started it goes.
int run(HWND window, HWND parent) {
  const OwnedHandle endEvent(CreateEventA(nullptr, TRUE, FALSE, nullptr));
  runningWindow = window;
  runHasEnded = endEvent.get();
  SetConsoleCtrlHandler(endOnConsoleSignal, TRUE);
  const int exitCode = runMessages(window, parent);
  SetEvent(runHasEnded);
  SetConsoleCtrlHandler(endOnConsoleSignal, FALSE);
  return exitCode;
}

int runFull(HINSTANCE instance) {
  // One full run in a session: a second one would be ended by the first one's window and end that one too.
  const OwnedHandle onlyOne(CreateMutexA(nullptr, FALSE, "Local\\LunariaFullRun"));
  if (onlyOne && GetLastError() == ERROR_ALREADY_EXISTS) {
    return ended;
  }
  HWND window = registerSaverClass(instance) ? makeFullRunWindow(instance) : nullptr;
  if (!window) {
    return failed;
  }
  const DisplayNotification notification(window);
  return run(window, nullptr);
}

int runPreview(HINSTANCE instance, HWND parent) {
  HWND window = registerSaverClass(instance) ? makePreviewWindow(instance, parent) : nullptr;
  return window ? run(window, parent) : failed;
}

INT_PTR CALLBACK configureProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  return ScreenSaverConfigureDialog(dialog, message, wParam, lParam);
}

int configure(HINSTANCE instance, HWND owner) {
  const INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_TAB_CLASSES};
  InitCommonControlsEx(&controls);
  if (!RegisterDialogClasses(instance)) {
    return failed;
  }
  const INT_PTR result = DialogBoxParamA(instance, MAKEINTRESOURCEA(configureDialog),
                                         IsWindow(owner) ? owner : nullptr, configureProcedure, 0);
  return result == -1 ? failed : ended;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  // No error box over a full screen that nobody watches.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
  const std::vector<std::string> arguments(__argv, __argv + __argc);
  const FrameworkCommand command = frameworkCommandOf(arguments);
  HWND named = reinterpret_cast<HWND>(command.window);
  switch (command.mode) {
    case FrameworkCommand::Mode::fullRun:
      return runFull(instance);
    case FrameworkCommand::Mode::preview:
      return runPreview(instance, named);
    case FrameworkCommand::Mode::configuration:
      return configure(instance, command.ownedByForeground ? GetForegroundWindow() : named);
    case FrameworkCommand::Mode::changePassword:
      return ended;  // passwords are the system's own since long ago
  }
  return failed;
}
