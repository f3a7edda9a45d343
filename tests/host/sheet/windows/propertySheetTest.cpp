// Tests what OK and Cancel of the property sheet write, the page that it remembers, and a file that cannot be
// written.
#include <filesystem>

#include <gmock/gmock.h>

#include "host/sheet/sheetPages.h"
#include "host/sheet/windows/propertySheetFixture.h"
#include "support/settingsGroups.h"

// After the others, since it needs their types.
#include <prsht.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

TEST_F(PropertySheetTest, EachPageWritesWhatWasClicked) {
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

TEST_F(PropertySheetTest, EveryRadioButtonShowsItsValueAgain) {
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

TEST_F(PropertySheetTest, AMoonSizeOf250ShowsMediumAndBecomes200) {
  cMoonSettings().moonSize.write(250);
  show([](SheetDriver& driver) {
    EXPECT_TRUE(driver.isChecked(controlIds::moonMedium));
    driver.ok();
  });
  EXPECT_EQ(inFile("moonSize"), "200");
}

TEST_F(PropertySheetTest, CancelWritesNothingButThePage) {
  show([](SheetDriver& driver) {
    driver.click(controlIds::moonSmall);
    driver.turnTo(backgroundPage);
    driver.click(controlIds::black);
    driver.cancel();
  });
  EXPECT_EQ(settingsText(), "activeDialogTab=2\n");
}

TEST_F(PropertySheetTest, PagesThatWereNotOpenedAreNotWritten) {
  choose(moonPage, {controlIds::moonSmall});
  EXPECT_EQ(settingsText(), "activeDialogTab=0\nmoonSize=100\n");
}

TEST_F(PropertySheetTest, OpensOnTheRememberedPage) {
  for (const auto& [remembered, shown] : std::vector<std::pair<int, int>>{{4, 4}, {12, 7}, {-3, 0}}) {
    cAppSettings().activeDialogTab.write(remembered);
    show([&](SheetDriver& driver) {
      EXPECT_EQ(driver.activePage(), shown);
      driver.cancel();
    });
    EXPECT_EQ(inFile("activeDialogTab"), std::to_string(shown));
  }
}

TEST_F(PropertySheetTest, KeptSheetLeftOnStartupReopensOnAbout) {
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

TEST_F(PropertySheetTest, SoundsPlayAtOnce) {
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

TEST_F(PropertySheetTest, ANotificationThatItDoesNotHandleIsAnsweredWithFalseAndZero) {
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

TEST_F(PropertySheetTest, AFileThatCannotBeWrittenIsToldAndTheSheetStays) {
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
