// Tests what the property sheet shows: its caption, its pages and their controls, and how soon.
#include <algorithm>
#include <chrono>
#include <cstring>

#include <gmock/gmock.h>

#include "host/sheet/aboutText.h"
#include "host/sheet/sheetPages.h"
#include "host/sheet/windows/propertySheetFixture.h"

// After the others, since they need their types.
#include <commctrl.h>
#include <prsht.h>
#include <uxtheme.h>

using testing::ElementsAre;

namespace {

std::string expectedClass(ControlKind kind) {
  switch (kind) {
    case ControlKind::label:
      return "Static";
    case ControlKind::multiLineEdit:
    case ControlKind::lineEdit:
      return "Edit";
    case ControlKind::link:
      return "SysLink";
    default:
      return "Button";
  }
}

LONG expectedStyle(ControlKind kind) {
  switch (kind) {
    case ControlKind::groupBox:
      return BS_GROUPBOX;
    case ControlKind::radioButton:
      return BS_AUTORADIOBUTTON;
    case ControlKind::checkBox:
      return BS_AUTOCHECKBOX;
    default:
      return BS_PUSHBUTTON;
  }
}

// How many of the page's windows have this class and text.
int countControls(HWND page, const std::string& className, const std::string& text) {
  int count = 0;
  for (HWND child = GetWindow(page, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    count += SheetDriver::classOf(child) == className && SheetDriver::textOf(child) == text ? 1 : 0;
  }
  return count;
}

void expectControl(HWND page, const SheetControl& control) {
  const std::string className = expectedClass(control.kind);
  if (control.id == controlIds::none) {
    EXPECT_EQ(countControls(page, className, control.text), 1) << control.text;
    return;
  }
  HWND window = GetDlgItem(page, control.id);
  ASSERT_NE(window, nullptr) << control.id;
  EXPECT_EQ(SheetDriver::classOf(window), className) << control.id;
  if (className == "Button") {
    EXPECT_EQ(GetWindowLongA(window, GWL_STYLE) & BS_TYPEMASK, expectedStyle(control.kind)) << control.id;
  }
  // These texts change when the page opens.
  if (className != "Edit" && className != "SysLink" && control.id != controlIds::messagePosition) {
    EXPECT_EQ(SheetDriver::textOf(window), control.text);
  }
}

TEST_F(PropertySheetTest, HasItsCaptionAndNoApplyButton) {
  show([](SheetDriver& driver) {
    constexpr int applyButton = 0x3021;
    EXPECT_EQ(SheetDriver::textOf(driver.window()), "Lunara 5.4.1 ");
    HWND apply = GetDlgItem(driver.window(), applyButton);
    EXPECT_TRUE(apply == nullptr || !IsWindowVisible(apply));
    EXPECT_TRUE(IsWindowVisible(GetDlgItem(driver.window(), IDOK)));
    EXPECT_TRUE(IsWindowVisible(GetDlgItem(driver.window(), IDCANCEL)));
    driver.cancel();
  });
}

TEST_F(PropertySheetTest, HasEightTabsInOrder) {
  show([](SheetDriver& driver) {
    HWND tabs = PropSheet_GetTabControl(driver.window());
    std::vector<std::string> titles;
    for (int i = 0; i < TabCtrl_GetItemCount(tabs); ++i) {
      char text[64] = "";
      TCITEMA item{};
      item.mask = TCIF_TEXT;
      item.pszText = text;
      item.cchTextMax = sizeof(text);
      SendMessageA(tabs, TCM_GETITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
      titles.emplace_back(item.pszText);
    }
    EXPECT_THAT(titles, ElementsAre("Moon", "Messages", "Background", "Sounds", "Quotes", "Power", "Startup",
                                    "About"));
    driver.cancel();
  });
}

TEST_F(PropertySheetTest, EveryPageHasTheControlsOfTheTableAndNoOthers) {
  show([](SheetDriver& driver) {
    for (int i = 0; i < pageCount; ++i) {
      driver.turnTo(i);
      const SheetPage& page = sheetPages()[static_cast<std::size_t>(i)];
      SCOPED_TRACE(page.title);
      std::size_t children = 0;
      for (HWND child = GetWindow(driver.page(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        ++children;
      }
      EXPECT_EQ(children, page.controls.size());
      for (const SheetControl& control : page.controls) {
        expectControl(driver.page(), control);
      }
    }
    driver.cancel();
  });
}

TEST_F(PropertySheetTest, TheTemplatesHaveTheirSizesTitlesAndFont) {
  for (const SheetPage& page : sheetPages()) {
    HMODULE module = GetModuleHandleA(nullptr);
    HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(page.dialogTemplate), RT_DIALOG);
    ASSERT_NE(found, nullptr) << page.title;
    std::vector<WORD> words(SizeofResource(module, found) / sizeof(WORD));
    ASSERT_GT(words.size(), 50U);
    std::memcpy(words.data(), LockResource(LoadResource(module, found)), words.size() * sizeof(WORD));
    ASSERT_EQ(words[1], 0xFFFF) << "an extended template";
    EXPECT_EQ(words[11], page.width) << page.title;
    EXPECT_EQ(words[12], page.height) << page.title;
    // No menu and no class; then the title, the font's size, weight and kind, and its name.
    const std::size_t length = std::strlen(page.title);
    const WORD* const text = words.data() + 15;
    const std::string title(text, text + length);
    EXPECT_EQ(title, page.title);
    const WORD* const font = text + length + 1;
    EXPECT_EQ(font[0], 8);
    EXPECT_EQ(std::string(font + 3, font + 3 + 12), "MS Shell Dlg");
  }
}

TEST_F(PropertySheetTest, PagesAreWithoutVisualStyles) {
  show([](SheetDriver& driver) {
    EXPECT_EQ(GetWindowTheme(driver.page()), nullptr);
    driver.cancel();
  });
}

TEST_F(PropertySheetTest, AboutShowsItsText) {
  show([](SheetDriver& driver) {
    driver.turnTo(aboutPage);
    std::string path = xplUserSettings().filename();
    path.insert(path.rfind('\\') + 1, "\n");
    EXPECT_EQ(driver.text(controlIds::about), aboutText(path, " \n"));
    driver.cancel();
  });
}

// A folder of the user may have an ampersand in its name, which else would underline what follows.
TEST_F(PropertySheetTest, AboutShowsAnAmpersandAsOne) {
  show([](SheetDriver& driver) {
    driver.turnTo(aboutPage);
    EXPECT_NE(GetWindowLongA(driver.control(controlIds::about), GWL_STYLE) & LWS_NOPREFIX, 0);
    driver.cancel();
  });
}

// The best of five, since the machine may have other things to do.
TEST_F(PropertySheetTest, OpensAtOnce) {
  constexpr auto longest = std::chrono::milliseconds(300);
  auto best = std::chrono::steady_clock::duration::max();
  for (int i = 0; i < 5; ++i) {
    const auto start = std::chrono::steady_clock::now();
    show([&](SheetDriver& driver) {
      best = std::min(best, std::chrono::steady_clock::now() - start);
      driver.cancel();
    });
  }
  RecordProperty("milliseconds", std::to_string(best / std::chrono::milliseconds(1)));
  EXPECT_LE(best, longest);
}

}  // namespace
