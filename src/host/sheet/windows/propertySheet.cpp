// Builds and runs the property sheet.
#include "host/sheet/windows/propertySheet.h"

#include <array>
#include <string>

#include "host/sheet/sheetPages.h"
#include "host/sheet/windows/pageProcedures.h"
#include "support/log.h"

// After the others, since it needs their types.
#include <commctrl.h>
#include <prsht.h>

namespace {

constexpr WORD sheetIcon = 201;

std::array<PROPSHEETPAGEA, pageCount> describePages(HINSTANCE instance, SettingsSheet& sheet) {
  std::array<PROPSHEETPAGEA, pageCount> descriptions{};
  const auto procedures = pageProcedures();
  for (std::size_t i = 0; i < descriptions.size(); ++i) {
    descriptions[i].dwSize = sizeof(PROPSHEETPAGEA);
    descriptions[i].hInstance = instance;
    descriptions[i].pszTemplate = MAKEINTRESOURCEA(sheetPages()[i].dialogTemplate);
    descriptions[i].pfnDlgProc = procedures[i];
    descriptions[i].lParam = reinterpret_cast<LPARAM>(&sheet);
  }
  return descriptions;
}

}  // namespace

bool showPropertySheet(HWND owner, SettingsSheet& sheet) {
  const INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_TAB_CLASSES | ICC_LINK_CLASS};
  InitCommonControlsEx(&controls);
  HINSTANCE instance = GetModuleHandleA(nullptr);
  const auto pages = describePages(instance, sheet);
  const std::string caption = sheetCaption();

  PROPSHEETHEADERA header{};
  header.dwSize = sizeof(header);
  header.dwFlags = PSH_PROPSHEETPAGE | PSH_USEICONID | PSH_NOAPPLYNOW;
  header.hwndParent = owner;
  header.hInstance = instance;
  header.pszIcon = MAKEINTRESOURCEA(sheetIcon);
  header.pszCaption = caption.c_str();
  header.nPages = static_cast<UINT>(pages.size());
  header.nStartPage = static_cast<UINT>(sheet.startPage());
  header.ppsp = pages.data();
  const bool shown = PropertySheetA(&header) != -1;
  if (!shown) {
    logError().addf("The settings sheet could not be shown: windows error code:%lu", GetLastError());
  }
  sheet.rememberPage();
  return shown;
}
