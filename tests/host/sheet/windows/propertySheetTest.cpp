// Tests the property sheet: its pages and controls, what OK and Cancel write, and a file that cannot be
// written.
#include <cstring>
#include <filesystem>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/sheet/aboutText.h"
#include "host/sheet/sheetPages.h"
#include "host/sheet/windows/sheetDriver.h"
#include "support/fileSystem.h"

// After the others, since they need their types.
#include <commctrl.h>
#include <prsht.h>
#include <uxtheme.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class PropertySheet : public PrivateFolders {
 protected:
  PropertySheet() { lastActivePage = 0; }
  static void show(const std::function<void(SheetDriver&)>& script) {
    SettingsSheet sheet;
    SheetDriver::run(sheet, script);
  }
  // Opens the sheet on a page, clicks, and confirms.
  static void choose(int page, const std::vector<int>& controls) {
    show([&](SheetDriver& driver) {
      driver.turnTo(page);
      for (const int control : controls) {
        driver.click(control);
      }
      driver.ok();
    });
  }
  static std::string settingsText() {
    std::string text = readFile(xplUserSettings().filename());
    std::erase(text, '\r');
    return text;
  }
  static std::string inFile(const std::string& key) {
    return xplSettings(xplSettings::scopeUser).get(key).value_or("(none)");
  }
};

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

TEST_F(PropertySheet, HasItsCaptionAndNoApplyButton) {
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

TEST_F(PropertySheet, HasEightTabsInOrder) {
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

TEST_F(PropertySheet, EveryPageHasTheControlsOfTheTableAndNoOthers) {
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

TEST_F(PropertySheet, TheTemplatesHaveTheirSizesTitlesAndFont) {
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

TEST_F(PropertySheet, PagesAreWithoutVisualStyles) {
  show([](SheetDriver& driver) {
    EXPECT_EQ(GetWindowTheme(driver.page()), nullptr);
    driver.cancel();
  });
}

TEST_F(PropertySheet, EachPageWritesWhatWasClicked) {
  choose(moonPage, {controlIds::moonSmall});
  choose(backgroundPage, {controlIds::gradientBlue});
  choose(soundsPage, {controlIds::birds, controlIds::cookooEveryHour});
  choose(quotesPage, {controlIds::wisdom, controlIds::womenVSMen});
  choose(powerPage, {controlIds::awake8Hours});
  choose(startupPage, {controlIds::oldTelevision});
  EXPECT_EQ(settingsText(),
            "activeDialogTab=7\nbackground=2\nmoonSize=100\npreventComputerSleep=2\n"
            "preventComputerSleepUntilUTCtime_inMinutes=24398235\nshowQuotes_Advice=no\nshowQuotes_Funny=no\n"
            "showQuotes_Love=no\nshowQuotes_Peace=no\nshowQuotes_Wisdom=yes\nshowQuotes_WomenVSMen=yes\n"
            "snd_cookooEveryHour=no\nsnd_selectedSound=5\nstartupEffect=1\n");
}

TEST_F(PropertySheet, EveryRadioButtonShowsItsValueAgain) {
  for (const SheetPage& page : sheetPages()) {
    const int position = static_cast<int>(&page - sheetPages().data());
    for (const SheetControl& control : page.controls) {
      if (control.kind != ControlKind::radioButton) {
        continue;
      }
      choose(position, {control.id});
      show([&](SheetDriver& driver) {
        driver.turnTo(position);
        for (const SheetControl& other : page.controls) {
          if (other.kind == ControlKind::radioButton) {
            EXPECT_EQ(driver.isChecked(other.id), other.id == control.id) << page.title << other.id;
          }
        }
        driver.cancel();
      });
    }
  }
}

TEST_F(PropertySheet, AMoonSizeOf250ShowsMediumAndBecomes200) {
  cMoonSettings().moonSize.write(250);
  show([](SheetDriver& driver) {
    EXPECT_TRUE(driver.isChecked(controlIds::moonMedium));
    driver.ok();
  });
  EXPECT_EQ(inFile("moonSize"), "200");
}

TEST_F(PropertySheet, CancelWritesNothingButThePage) {
  show([](SheetDriver& driver) {
    driver.click(controlIds::moonSmall);
    driver.turnTo(backgroundPage);
    driver.click(controlIds::black);
    driver.cancel();
  });
  EXPECT_EQ(settingsText(), "activeDialogTab=2\n");
}

TEST_F(PropertySheet, PagesThatWereNotOpenedAreNotWritten) {
  choose(moonPage, {controlIds::moonSmall});
  EXPECT_EQ(settingsText(), "activeDialogTab=0\nmoonSize=100\n");
}

TEST_F(PropertySheet, OpensOnTheRememberedPage) {
  for (const auto& [remembered, shown] : std::vector<std::pair<int, int>>{{4, 4}, {12, 7}, {-3, 0}}) {
    cAppSettings().activeDialogTab.write(remembered);
    show([&](SheetDriver& driver) {
      EXPECT_EQ(driver.activePage(), shown);
      driver.cancel();
    });
    EXPECT_EQ(inFile("activeDialogTab"), std::to_string(shown));
  }
}

TEST_F(PropertySheet, KeptSheetLeftOnStartupReopensOnAbout) {
  show([](SheetDriver& driver) {
    driver.turnTo(startupPage);
    driver.ok();
  });
  EXPECT_EQ(inFile("activeDialogTab"), "7");
  show([](SheetDriver& driver) {
    EXPECT_EQ(driver.activePage(), aboutPage);
    driver.cancel();
  });
}

TEST_F(PropertySheet, SoundsPlayAtOnce) {
  std::vector<int> heard;
  SettingsSheet sheet(xplUserSettings(), {[&](int sound) { heard.push_back(sound); },
                                          [&] { heard.push_back(100); }, [&] { heard.push_back(0); }});
  SheetDriver::run(sheet, [&](SheetDriver& driver) {
    driver.turnTo(soundsPage);
    EXPECT_THAT(heard, ElementsAre());
    driver.click(controlIds::lullaby);
    driver.click(controlIds::cookooEveryHour);
    driver.click(controlIds::silence);
    driver.cancel();
  });
  EXPECT_THAT(heard, ElementsAre(3, 100, 0));
}

TEST_F(PropertySheet, AboutShowsItsText) {
  show([](SheetDriver& driver) {
    driver.turnTo(aboutPage);
    EXPECT_EQ(driver.text(controlIds::about), aboutText(xplUserSettings().filename()));
    driver.cancel();
  });
}

TEST_F(PropertySheet, ANotificationThatItDoesNotHandleIsAnsweredWithFalseAndZero) {
  show([](SheetDriver& driver) {
    SetWindowLongPtrA(driver.page(), DWLP_MSGRESULT, 17);
    NMHDR notification{driver.window(), 0, static_cast<UINT>(PSN_HELP)};
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrA(driver.page(), DWLP_DLGPROC));
    EXPECT_EQ(procedure(driver.page(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification)), FALSE);
    EXPECT_EQ(GetWindowLongPtrA(driver.page(), DWLP_MSGRESULT), 0);
    notification.code = static_cast<UINT>(PSN_SETACTIVE);
    EXPECT_EQ(procedure(driver.page(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification)), TRUE);
    driver.cancel();
  });
}

TEST_F(PropertySheet, AFileThatCannotBeWrittenIsToldAndTheSheetStays) {
  const std::string file = xplUserSettings().filename();
  cMessageSettings().load();
  std::filesystem::remove(file);
  std::filesystem::create_directories(file + "/in the way");
  SettingsSheet sheet;
  SheetDriver::run(sheet, {[&](SheetDriver& driver) {
                             driver.click(controlIds::moonSmall);
                             driver.turnTo(messagesPage);
                             driver.setText(controlIds::message, "not lost");
                             EXPECT_THAT(driver.okAndReadBox(), HasSubstr(file));
                           },
                           [&](SheetDriver& driver) {
                             EXPECT_EQ(driver.activePage(), messagesPage);
                             EXPECT_EQ(driver.text(controlIds::message), "not lost");
                             std::filesystem::remove_all(file);
                             driver.ok();
                           }});
  EXPECT_EQ(inFile("moonSize"), "100");
  EXPECT_EQ(inFile("message1"), "not lost");
}

}  // namespace
