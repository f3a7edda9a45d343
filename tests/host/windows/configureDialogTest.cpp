// Tests the dialog of the configuration mode: it runs the settings, then closes itself.
#include <gmock/gmock.h>

#include "host/noctisScreensaver.h"
#include "host/windowProcedureFixture.h"
#include "host/windows/configureDialog.h"
#include "host/windows/messageQueue.h"
#include "support/settingsGroups.h"

using testing::ElementsAre;

namespace {

class ConfigureDialog : public WindowProcedureTest {
 protected:
  // The command that waits for the dialog; -1 for none.
  int postedCommand() const {
    MSG message{};
    return PeekMessageA(&message, dialog.handle(), WM_COMMAND, WM_COMMAND, PM_REMOVE) && message.lParam == 0
               ? static_cast<int>(message.wParam)
               : -1;
  }

  PlainWindow dialog{DefDlgProcA};
};

TEST_F(ConfigureDialog, RunsTheSettingsOfASaverOfItsOwnAndDeletesIt) {
  EXPECT_EQ(ScreenSaverConfigureDialog(dialog.handle(), WM_INITDIALOG, 0, 0), TRUE);
  EXPECT_THAT(record.calls, ElementsAre("construct", "configure", "delete"));
  EXPECT_EQ(windowProcedure::screensaverPtr, nullptr);
  EXPECT_FALSE(windowProcedure::initializedOnce);
  EXPECT_THAT(
      newEntries(),
      ElementsAre("ScreenSaverConfigureDialog received WM_INITDIALOG", "creating: xplScreenSaverAbstract",
                  "Program: Lunaria screensaver 5.4.1", "destroying: xplScreenSaverAbstract"));
}

TEST_F(ConfigureDialog, ASaverWithoutASheetIsNotAskedForOne) {
  windowProcedure::makeScreenSaver = []() -> std::unique_ptr<xplScreenSaverInterface> {
    auto saver = std::make_unique<RecordingSaver>(record);
    saver->m_hasSheet = false;
    return saver;
  };
  EXPECT_EQ(ScreenSaverConfigureDialog(dialog.handle(), WM_INITDIALOG, 0, 0), TRUE);
  EXPECT_THAT(record.calls, ElementsAre("construct", "delete"));
  EXPECT_EQ(postedCommand(), IDOK);
}

TEST_F(ConfigureDialog, WithoutASaverItClosesAllTheSame) {
  windowProcedure::makeScreenSaver = [] { return std::unique_ptr<xplScreenSaverInterface>(); };
  EXPECT_EQ(ScreenSaverConfigureDialog(dialog.handle(), WM_INITDIALOG, 0, 0), TRUE);
  EXPECT_EQ(postedCommand(), IDOK);
}

TEST_F(ConfigureDialog, TellsItselfToCloseWithOk) {
  ScreenSaverConfigureDialog(dialog.handle(), WM_INITDIALOG, 0, 0);
  EXPECT_EQ(postedCommand(), IDOK);
  EXPECT_EQ(postedCommand(), -1);
}

TEST_F(ConfigureDialog, DestroyingLogsTheClosingLineAndIsNotHandled) {
  EXPECT_EQ(ScreenSaverConfigureDialog(dialog.handle(), WM_DESTROY, 0, 0), FALSE);
  EXPECT_THAT(newEntries(), ElementsAre("xplLog closing"));
}

TEST_F(ConfigureDialog, KeptUnhandledMessagesAreAnsweredTrue) {
  constexpr UINT messages[] = {WM_PAINT, WM_TIMER, WM_CLOSE, WM_CTLCOLORDLG, WM_KEYDOWN, WM_NULL};
  for (const UINT message : messages) {
    EXPECT_EQ(ScreenSaverConfigureDialog(dialog.handle(), message, 0, 0), TRUE) << message;
  }
  EXPECT_EQ(ScreenSaverConfigureDialog(dialog.handle(), WM_COMMAND, 1001, 0), TRUE);
  EXPECT_THAT(newEntries(), ElementsAre());
}

TEST_F(ConfigureDialog, ThereIsNothingToRegister) {
  EXPECT_EQ(RegisterDialogClasses(GetModuleHandleA(nullptr)), TRUE);
}

INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ScreenSaverConfigureDialog(window, message, wParam, lParam);
}

// As above, but the dialog is told to cancel where it would run the settings.
INT_PTR CALLBACK cancellingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    PostMessageA(window, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    return TRUE;
  }
  return ScreenSaverConfigureDialog(window, message, wParam, lParam);
}

INT_PTR runDialog(DLGPROC dialogProcedure) {
  return DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(2003), nullptr, dialogProcedure, 0);
}

TEST_F(ConfigureDialog, TheRealDialogEndsWithTrueAfterTheSettings) {
  EXPECT_EQ(runDialog(procedure), TRUE);
  EXPECT_THAT(record.calls, ElementsAre("construct", "configure", "delete"));
  EXPECT_EQ(countEntries("xplLog closing"), 1);
}

TEST_F(ConfigureDialog, TheRealDialogEndsWithFalseWhenCancelled) {
  EXPECT_EQ(runDialog(cancellingProcedure), FALSE);
  EXPECT_EQ(countEntries("xplLog closing"), 1);
}

// Closes the sheet as with its Cancel button, once it is there.
void CALLBACK cancelSheet(HWND, UINT, UINT_PTR timer, DWORD) {
  HWND sheet = FindWindowA("#32770", "Lunara 5.4.1 ");
  if (sheet) {
    KillTimer(nullptr, timer);
    PostMessageA(sheet, WM_COMMAND, IDCANCEL, 0);
  }
}

TEST_F(ConfigureDialog, TheSaverRunsTheSheetAndRemembersItsPage) {
  noctisScreensaver saver;
  cAppSettings().activeDialogTab.write(2);
  SetTimer(nullptr, 0, 20, cancelSheet);
  saver.showConfigureSheet(nullptr);
  EXPECT_EQ(xplSettings(xplSettings::scopeUser).get("activeDialogTab"), "2");
  EXPECT_EQ(countEntries("noctisScreensaver::showConfigureSheet()", "Info"), 1);
}

// The framework's dialog, the saver and the sheet together.
TEST_F(ConfigureDialog, TheSheetOverTheRealDialogClosesBoth) {
  windowProcedure::makeScreenSaver = []() -> std::unique_ptr<xplScreenSaverInterface> {
    return std::make_unique<noctisScreensaver>();
  };
  SetTimer(nullptr, 0, 20, cancelSheet);
  EXPECT_EQ(runDialog(procedure), TRUE);
  EXPECT_EQ(FindWindowA("#32770", "Lunara 5.4.1 "), nullptr);
  EXPECT_EQ(countEntries("noctisScreensaver::showConfigureSheet()"), 1);
  EXPECT_EQ(countEntries("xplLog closing"), 1);
}

}  // namespace
