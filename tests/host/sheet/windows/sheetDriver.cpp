// Implements the driver of the property sheet.
#include "host/sheet/windows/sheetDriver.h"

#include <deque>

#include <gtest/gtest.h>

#include "host/sheet/sheetPages.h"
#include "host/sheet/windows/propertySheet.h"

// After the others, since they need their types.
#include <commctrl.h>
#include <prsht.h>

namespace {

constexpr UINT oftenEnough = 10;  // milliseconds between two looks for a window

std::deque<SheetDriver::Step> pendingSteps;
bool stepIsRunning = false;  // a message box of the sheet lets the timers go on
std::string boxText;

struct Search {
  std::string title;
  HWND found = nullptr;
};

BOOL CALLBACK compareTitle(HWND window, LPARAM search) {
  auto& wanted = *reinterpret_cast<Search*>(search);
  if (IsWindowVisible(window) && SheetDriver::textOf(window) == wanted.title) {
    wanted.found = window;
  }
  return wanted.found == nullptr;
}

HWND findOwnWindow(const std::string& title) {
  Search search{title};
  EnumThreadWindows(GetCurrentThreadId(), compareTitle, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

BOOL CALLBACK appendText(HWND window, LPARAM text) {
  *reinterpret_cast<std::string*>(text) += SheetDriver::textOf(window) + "\n";
  return TRUE;
}

}  // namespace

void CALLBACK SheetDriver::look(HWND, UINT, UINT_PTR timer, DWORD) {
  HWND window = findOwnWindow(sheetCaption());
  if (window == nullptr || stepIsRunning) {
    return;
  }
  SheetDriver driver(window);
  if (!pendingSteps.empty()) {
    const Step step = pendingSteps.front();
    pendingSteps.pop_front();
    stepIsRunning = true;
    step(driver);
    stepIsRunning = false;
    return;
  }
  // The sheet was told to close, and has handled messages since.
  KillTimer(nullptr, timer);
  ADD_FAILURE() << "the script left the sheet open";
  driver.cancel();
}

void CALLBACK SheetDriver::confirmBox(HWND, UINT, UINT_PTR timer, DWORD) {
  HWND box = findOwnWindow("Lunaria screensaver");
  if (box == nullptr) {
    return;
  }
  KillTimer(nullptr, timer);
  EnumChildWindows(box, appendText, reinterpret_cast<LPARAM>(&boxText));
  PostMessageA(box, WM_COMMAND, IDOK, 0);
}

void SheetDriver::run(SettingsSheet& sheet, std::vector<Step> steps) {
  pendingSteps.assign(steps.begin(), steps.end());
  const UINT_PTR timer = SetTimer(nullptr, 0, oftenEnough, look);
  EXPECT_TRUE(showPropertySheet(nullptr, sheet));
  KillTimer(nullptr, timer);
  EXPECT_TRUE(pendingSteps.empty()) << "the sheet closed too early";
}

HWND SheetDriver::page() const {
  return PropSheet_GetCurrentPageHwnd(m_window);
}

int SheetDriver::activePage() const {
  return static_cast<int>(SendMessageA(PropSheet_GetTabControl(m_window), TCM_GETCURSEL, 0, 0));
}

void SheetDriver::turnTo(int page) const {
  SendMessageA(m_window, PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
}

void SheetDriver::type(int id, const std::string& characters) const {
  for (const char character : characters) {
    SendMessageA(control(id), WM_CHAR, static_cast<unsigned char>(character), 0);
  }
}

void SheetDriver::ok() const {
  SendMessageA(m_window, PSM_PRESSBUTTON, PSBTN_OK, 0);
}

void SheetDriver::cancel() const {
  SendMessageA(m_window, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
}

std::string SheetDriver::okAndReadBox() const {
  boxText.clear();
  SetTimer(nullptr, 0, oftenEnough, confirmBox);
  ok();
  return boxText;
}

std::string SheetDriver::textOf(HWND window) {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
  text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::string SheetDriver::classOf(HWND window) {
  char name[64] = "";
  GetClassNameA(window, name, sizeof(name));
  return name;
}
