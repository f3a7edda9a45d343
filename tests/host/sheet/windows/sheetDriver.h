// Shows the property sheet and works it as a user does, by messages to its windows.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "graphics/windows/gdi.h"
#include "host/sheet/settingsSheet.h"

// Drives one sheet at a time, from inside its own message loop.
class SheetDriver {
 public:
  using Step = std::function<void(SheetDriver&)>;

  // Shows the sheet, runs the steps once it is visible, and returns when it is closed. Between two steps the
  // sheet handles its messages. A sheet that closes before the last step, or that the last step leaves open,
  // fails the test; it is then cancelled.
  static void run(SettingsSheet& sheet, std::vector<Step> steps);
  static void run(SettingsSheet& sheet, const Step& script) { run(sheet, std::vector{script}); }

  HWND window() const { return m_window; }
  // The dialog of the active page.
  HWND page() const;
  int activePage() const;
  void turnTo(int page) const;
  HWND control(int id) const { return GetDlgItem(page(), id); }
  // Clicks a button of the active page.
  void click(int id) const { SendMessageA(control(id), BM_CLICK, 0, 0); }
  bool isChecked(int id) const { return IsDlgButtonChecked(page(), id) == 1U; }
  bool isEnabled(int id) const { return IsWindowEnabled(control(id)) != FALSE; }
  std::string text(int id) const { return textOf(control(id)); }
  void type(int id, const std::string& characters) const;
  void setText(int id, const std::string& text) const { SetDlgItemTextA(page(), id, text.c_str()); }
  void ok() const;
  void cancel() const;
  // OK where a message box is expected: the box is confirmed, and its text returned.
  std::string okAndReadBox() const;

  static std::string textOf(HWND window);
  static std::string classOf(HWND window);

 private:
  explicit SheetDriver(HWND window) : m_window(window) {}
  static void CALLBACK look(HWND, UINT, UINT_PTR timer, DWORD);
  static void CALLBACK confirmBox(HWND, UINT, UINT_PTR timer, DWORD);

  HWND m_window;
};
