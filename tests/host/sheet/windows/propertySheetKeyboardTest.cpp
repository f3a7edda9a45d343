// Tests the ways to close the property sheet, and how the keyboard goes through its pages.
#include <gmock/gmock.h>

#include "host/sheet/sheetPages.h"
#include "host/sheet/windows/propertySheetFixture.h"
#include "support/settingsGroups.h"

namespace {

class PropertySheetKeyboard : public PropertySheetTest {
 protected:
  // Chooses another size of the moon, and then closes the sheet in this way.
  static void chooseSmallAnd(const std::function<void(SheetDriver&)>& close) {
    show([&](SheetDriver& driver) {
      driver.click(controlIds::moonSmall);
      SetFocus(driver.control(controlIds::moonSmall));
      close(driver);
    });
  }
  // The key comes the way that all keys come, through the message loop.
  static void pressKey(SheetDriver& driver, WPARAM key) {
    PostMessageA(driver.control(controlIds::moonSmall), WM_KEYDOWN, key, 0);
  }
  // The ids of the controls at which the tabulator stops, from the first one of the page on.
  static std::vector<int> tabStopsOf(HWND page) {
    std::vector<int> ids;
    HWND const first = GetNextDlgTabItem(page, nullptr, FALSE);
    HWND control = first;
    while (control != nullptr && (control != first || ids.empty())) {
      ids.push_back(GetDlgCtrlID(control));
      control = GetNextDlgTabItem(page, control, FALSE);
    }
    return ids;
  }
  // What the table of the pages makes of it: of radio buttons the checked one is a stop, and nothing is that
  // is switched off.
  static std::vector<int> expectedTabStops(const SheetDriver& driver, const SheetPage& page) {
    std::vector<int> ids;
    for (const SheetControl& control : page.controls) {
      const bool isShownOnly = control.kind == ControlKind::groupBox || control.kind == ControlKind::label;
      const bool isOtherRadio = control.kind == ControlKind::radioButton && !driver.isChecked(control.id);
      if (!isShownOnly && !isOtherRadio && driver.isEnabled(control.id)) {
        ids.push_back(control.id);
      }
    }
    return ids;
  }
};

constexpr char onlyThePage[] = "activeDialogTab=0\n";
constexpr char smallMoon[] = "activeDialogTab=0\nmoonSize=100\n";

TEST_F(PropertySheetKeyboard, OkSaves) {
  chooseSmallAnd(
      [](SheetDriver& driver) { SendMessageA(GetDlgItem(driver.window(), IDOK), BM_CLICK, 0, 0); });
  EXPECT_EQ(settingsText(), smallMoon);
}

TEST_F(PropertySheetKeyboard, CancelSavesNothingButThePage) {
  chooseSmallAnd(
      [](SheetDriver& driver) { SendMessageA(GetDlgItem(driver.window(), IDCANCEL), BM_CLICK, 0, 0); });
  EXPECT_EQ(settingsText(), onlyThePage);
}

TEST_F(PropertySheetKeyboard, TheCrossOfTheWindowSavesNothingButThePage) {
  chooseSmallAnd([](SheetDriver& driver) { PostMessageA(driver.window(), WM_SYSCOMMAND, SC_CLOSE, 0); });
  EXPECT_EQ(settingsText(), onlyThePage);
}

TEST_F(PropertySheetKeyboard, EscapeSavesNothingButThePage) {
  chooseSmallAnd([](SheetDriver& driver) { pressKey(driver, VK_ESCAPE); });
  EXPECT_EQ(settingsText(), onlyThePage);
}

TEST_F(PropertySheetKeyboard, EnterPressesOk) {
  chooseSmallAnd([](SheetDriver& driver) { pressKey(driver, VK_RETURN); });
  EXPECT_EQ(settingsText(), smallMoon);
}

TEST_F(PropertySheetKeyboard, TheTabulatorFollowsTheTableOnEveryPage) {
  show([](SheetDriver& driver) {
    for (int i = 0; i < pageCount; ++i) {
      driver.turnTo(i);
      const SheetPage& page = sheetPages()[static_cast<std::size_t>(i)];
      const std::vector<int> stops = tabStopsOf(driver.page());
      EXPECT_EQ(stops, expectedTabStops(driver, page)) << page.title;
      EXPECT_FALSE(stops.empty()) << page.title;
    }
    driver.cancel();
  });
}

// The picture of an icon, 16 by 16 pixels on white.
std::vector<COLORREF> pictureOf(HICON icon) {
  constexpr int side = 16;
  HDC screen = GetDC(nullptr);
  HDC dc = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, side, side);
  HGDIOBJ before = SelectObject(dc, bitmap);
  PatBlt(dc, 0, 0, side, side, WHITENESS);
  DrawIconEx(dc, 0, 0, icon, side, side, 0, nullptr, DI_NORMAL);
  std::vector<COLORREF> pixels;
  for (int i = 0; i < side * side; ++i) {
    pixels.push_back(GetPixel(dc, i % side, i / side));
  }
  SelectObject(dc, before);
  DeleteObject(bitmap);
  DeleteDC(dc);
  ReleaseDC(nullptr, screen);
  return pixels;
}

TEST_F(PropertySheetKeyboard, TheSheetShowsTheProgramsIcon) {
  const auto icon =
      static_cast<HICON>(LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(201), IMAGE_ICON, 16, 16, 0));
  ASSERT_NE(icon, nullptr) << "the program carries no icon 201";
  show([&](SheetDriver& driver) {
    const auto shown = reinterpret_cast<HICON>(SendMessageA(driver.window(), WM_GETICON, ICON_SMALL, 0));
    ASSERT_NE(shown, nullptr);
    const auto picture = pictureOf(shown);
    EXPECT_EQ(picture, pictureOf(icon));
    EXPECT_NE(picture, std::vector<COLORREF>(picture.size(), RGB(255, 255, 255)));
    driver.cancel();
  });
  DestroyIcon(icon);
}

}  // namespace
