// Tests the dialog: what OK and Cancel write, the page that it remembers, and what goes wrong.
#include <QTimer>
#include <filesystem>

#include <gmock/gmock.h>

#include "host/sheet/linux/dialogFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

TEST_F(DialogTest, EachPageWritesWhatWasClicked) {
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

TEST_F(DialogTest, EveryRadioButtonShowsItsValueAgain) {
  for (int position = 0; position < pageCount; ++position) {
    const SheetPage& description = sheetPages()[static_cast<std::size_t>(position)];
    for (const SheetControl& wanted : description.controls) {
      if (wanted.kind != ControlKind::radioButton) {
        continue;
      }
      choose(position, {wanted.id});
      show(position);
      for (const SheetControl& other : description.controls) {
        if (other.kind == ControlKind::radioButton) {
          EXPECT_EQ(button(other.id).isChecked(), other.id == wanted.id) << description.title << other.id;
        }
      }
    }
  }
}

TEST_F(DialogTest, AFreshInstallationConfirmedPageByPageWritesTheDefaults) {
  show();
  for (int position = 0; position < pageCount; ++position) {
    turnTo(position);
  }
  ok();
  sheet->rememberPage();
  EXPECT_EQ(settingsText(),
            "activeDialogTab=7\nbackground=3\n"
            "bottomline1=and your bottom line here\nbottomline2=" +
                inFile("bottomline2") +
                "\nmessage1=Your message\\r\\nhere\nmessage2=Lunaria\\r\\nscreensaver\nmessagesCount=2\n"
                "moonSize=300\nmsg_defaultMessagesAdded=1\npreventComputerSleep=0\n"
                "showQuotes_Advice=no\nshowQuotes_Funny=no\nshowQuotes_Love=no\nshowQuotes_Peace=no\n"
                "showQuotes_Wisdom=no\nshowQuotes_WomenVSMen=no\nsnd_cookooEveryHour=yes\n"
                "snd_selectedSound=0\nstartupEffect=0\n");
}

TEST_F(DialogTest, AMoonSizeOf250ShowsMediumAndBecomes200) {
  cMoonSettings().moonSize.write(250);
  show();
  EXPECT_TRUE(button(controlIds::moonMedium).isChecked());
  ok();
  EXPECT_EQ(inFile("moonSize"), "200");
}

TEST_F(DialogTest, CancelWritesNothingButThePage) {
  show();
  click(controlIds::moonSmall);
  turnTo(backgroundPage);
  click(controlIds::black);
  cancel();
  EXPECT_FALSE(isOpen());
  sheet->rememberPage();
  EXPECT_EQ(settingsText(), "activeDialogTab=2\n");
}

TEST_F(DialogTest, EscapeAndTheWindowsCloseButtonCancel) {
  show();
  click(controlIds::moonSmall);
  press(*dialog, Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  show();
  click(controlIds::moonSmall);
  dialog->close();
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(inFile("moonSize"), "(none)");
}

TEST_F(DialogTest, EnterConfirms) {
  show();
  click(controlIds::moonSmall);
  press(button(controlIds::moonSmall), Qt::Key_Return);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(inFile("moonSize"), "100");
}

TEST_F(DialogTest, PagesThatWereNotOpenedAreNotWritten) {
  choose(moonPage, {controlIds::moonSmall});
  EXPECT_EQ(settingsText(), "activeDialogTab=0\nmoonSize=100\n");
}

TEST_F(DialogTest, OpensOnTheRememberedPage) {
  for (const auto& [remembered, shown] : std::vector<std::pair<int, int>>{{4, 4}, {12, 7}, {-3, 0}}) {
    show(remembered);
    EXPECT_EQ(tabs().currentIndex(), shown);
    cancel();
    sheet->rememberPage();
    EXPECT_EQ(inFile("activeDialogTab"), std::to_string(shown));
  }
}

TEST_F(DialogTest, KeptSheetLeftOnStartupReopensOnAbout) {
  show();
  turnTo(startupPage);
  ok();
  sheet->rememberPage();
  EXPECT_EQ(inFile("activeDialogTab"), "7");
  show();
  EXPECT_EQ(tabs().currentIndex(), aboutPage);
}

TEST_F(DialogTest, ShowingItWaitsForItsEndAndRemembersThePage) {
  cAppSettings().activeDialogTab.write(quotesPage);
  SettingsSheet own;
  std::string title;
  QTimer::singleShot(0, [&title] {
    QWidget* shown = QApplication::activeModalWidget();
    title = shown->windowTitle().toStdString();
    shown->findChild<QTabWidget*>()->setCurrentIndex(powerPage);
    shown->close();
  });
  showSettingsDialog(own);
  EXPECT_EQ(title, "Lunara 5.4.1 ");
  EXPECT_EQ(settingsText(), "activeDialogTab=5\n");
}

TEST_F(DialogTest, SoundsPlayAtOnce) {
  std::vector<int> heard;
  preview = {[&](int sound) { heard.push_back(sound); }, [&] { heard.push_back(100); },
             [&] { heard.push_back(0); }};
  show(soundsPage);
  EXPECT_THAT(heard, ElementsAre());
  click(controlIds::lullaby);
  click(controlIds::cookooEveryHour);
  click(controlIds::silence);
  click(controlIds::birds);
  dialog.reset();
  sheet.reset();
  EXPECT_THAT(heard, ElementsAre(3, 100, 0, 5, 0));
}

TEST_F(DialogTest, AFileThatCannotBeWrittenIsToldAndTheSheetStays) {
  show();
  const std::string file = xplUserSettings().filename();
  click(controlIds::moonSmall);
  turnTo(messagesPage);
  std::filesystem::remove(file);
  std::filesystem::create_directories(file + "/in the way");
  message().setPlainText("not lost");
  EXPECT_THAT(okAndReadBox(), HasSubstr(file));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(tabs().currentIndex(), messagesPage);
  EXPECT_EQ(message().toPlainText(), "not lost");
  std::filesystem::remove_all(file);
  ok();
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(inFile("moonSize"), "100");
  EXPECT_EQ(inFile("message1"), "not lost");
}

// What a running saver, or another sheet, has written meanwhile stays: a store of its own stands for its
// process.
TEST_F(DialogTest, WhatAnotherProgramWroteMeanwhileIsKept) {
  show();
  click(controlIds::moonSmall);
  xplSettings other(xplSettings::scopeUser);
  SettingsSheet otherSheet(other);
  SettingsDialog otherDialog(otherSheet);
  otherDialog.findChild<QTabWidget*>()->setCurrentIndex(startupPage);
  otherDialog.accept();
  other.set("messagesCount", 7);
  ok();
  EXPECT_EQ(settingsText(), "messagesCount=7\nmoonSize=100\nstartupEffect=0\n");
}

}  // namespace
