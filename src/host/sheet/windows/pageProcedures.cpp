// Implements the pages: reading the settings into the controls, and the controls into the settings.
#include "host/sheet/windows/pageProcedures.h"

#include <algorithm>
#include <string>
#include <vector>

#include "host/programVersion.h"
#include "host/sheet/aboutText.h"
#include "host/sheet/settingsSheet.h"
#include "host/sheet/sheetPages.h"
#include "host/sheet/windows/messagesPage.h"

// After the others, since they need their types.
#include <commctrl.h>
#include <prsht.h>
#include <shellapi.h>
#include <uxtheme.h>

namespace {

// The link control may break lines in the middle of words, and may measure one a little too short, which then
// takes from the blank at its end.
constexpr char aboutLineBreak[] = " \n";

// A path in two lines: it would be broken within the name of the file.
std::string inTwoLines(std::string path) {
  return path.insert(path.rfind('\\') + 1, "\n");
}

SettingsSheet& sheetOf(HWND dialog) {
  return *reinterpret_cast<SettingsSheet*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

bool isChoice(const SheetControl& control) {
  return control.kind == ControlKind::radioButton || control.kind == ControlKind::checkBox;
}

std::span<const SheetControl> controlsOf(int page) {
  return sheetPages()[static_cast<std::size_t>(page)].controls;
}

void initialize(HWND dialog, int page, SettingsSheet& sheet) {
  SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&sheet));
  SetWindowTheme(dialog, L"", L"");  // without visual styles
  const std::vector<int> checked = sheet.open(page);
  for (const SheetControl& control : controlsOf(page)) {
    if (isChoice(control)) {
      // Also for those that are not checked: it takes the tab stop from radio buttons.
      const bool isChecked = std::ranges::find(checked, control.id) != checked.end();
      CheckDlgButton(dialog, control.id, isChecked ? BST_CHECKED : BST_UNCHECKED);
    }
  }
  if (page == messagesPage) {
    initializeMessagesPage(dialog, sheet.messages());
  } else if (page == aboutPage) {
    SetDlgItemTextA(dialog, controlIds::about,
                    aboutText(inTwoLines(sheet.settingsFile()), aboutLineBreak).c_str());
  }
}

std::vector<int> checkedOf(HWND dialog, int page) {
  std::vector<int> checked;
  for (const SheetControl& control : controlsOf(page)) {
    if (isChoice(control) && IsDlgButtonChecked(dialog, control.id) == static_cast<UINT>(BST_CHECKED)) {
      checked.push_back(control.id);
    }
  }
  return checked;
}

// The last opened page writes for all of them, so that either everything is written or nothing.
LONG_PTR apply(HWND dialog, int page) {
  SettingsSheet& sheet = sheetOf(dialog);
  if (page == messagesPage) {
    storeMessageEdits(dialog, sheet.messages());
  }
  sheet.collect(page, checkedOf(dialog, page));
  if (!sheet.isComplete() || sheet.commit()) {
    return PSNRET_NOERROR;
  }
  MessageBoxA(GetParent(dialog), sheet.failureText().c_str(), programName, MB_OK | MB_ICONWARNING);
  return PSNRET_INVALID_NOCHANGEPAGE;
}

void followLink(HWND dialog) {
  ShellExecuteA(dialog, "open", aboutAddress().c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

// TRUE for a notification that is handled here.
INT_PTR notified(HWND dialog, int page, const NMHDR& notification) {
  LONG_PTR result = 0;
  INT_PTR handled = TRUE;
  switch (notification.code) {
    case PSN_SETACTIVE:
    case PSN_KILLACTIVE:
      SettingsSheet::pageSwitched(page);
      break;
    case PSN_APPLY:
      result = apply(dialog, page);
      break;
    case NM_CLICK:
    case NM_RETURN:
      if (notification.idFrom == controlIds::about) {
        followLink(dialog);
      }
      break;
    default:
      handled = FALSE;
      break;
  }
  SetWindowLongPtrA(dialog, DWLP_MSGRESULT, result);
  return handled;
}

// An edit of several lines makes Escape into WM_CLOSE for its page, which becomes this command. Nobody else
// would hear it.
bool isEscapeOfAnEdit(WPARAM wParam, LPARAM lParam) {
  return wParam == IDCANCEL && lParam == 0;
}

template <int page>
INT_PTR CALLBACK pageProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: {
      const auto* description = reinterpret_cast<const PROPSHEETPAGEA*>(lParam);
      initialize(dialog, page, *reinterpret_cast<SettingsSheet*>(description->lParam));
      return TRUE;
    }
    case WM_COMMAND:
      if (isEscapeOfAnEdit(wParam, lParam)) {
        PropSheet_PressButton(GetParent(dialog), PSBTN_CANCEL);
        return TRUE;
      }
      if (HIWORD(wParam) != BN_CLICKED || lParam == 0) {
        return FALSE;
      }
      if (page == messagesPage) {
        pressMessageButton(dialog, LOWORD(wParam), sheetOf(dialog).messages());
      }
      sheetOf(dialog).clicked(page, LOWORD(wParam));
      return TRUE;
    case WM_NOTIFY:
      return notified(dialog, page, *reinterpret_cast<const NMHDR*>(lParam));
    default:
      return FALSE;
  }
}

}  // namespace

std::array<DLGPROC, pageCount> pageProcedures() {
  return {pageProcedure<moonPage>,    pageProcedure<messagesPage>, pageProcedure<backgroundPage>,
          pageProcedure<soundsPage>,  pageProcedure<quotesPage>,   pageProcedure<powerPage>,
          pageProcedure<startupPage>, pageProcedure<aboutPage>};
}
