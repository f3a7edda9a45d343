// The settings sheet on Linux: a dialog of eight pages.
#pragma once

#include <QDialog>
#include <QTabWidget>
#include <array>

#include "host/sheet/linux/aboutPage.h"
#include "host/sheet/linux/choicePage.h"
#include "host/sheet/linux/messagesPage.h"
#include "host/sheet/settingsSheet.h"

class SettingsDialog : public QDialog {
 public:
  // Borrows the sheet, which must outlive the dialog.
  explicit SettingsDialog(SettingsSheet& sheet);

  // Ends the dialog. Accepted (OK, Enter): writes the opened pages first; where that fails the user is told,
  // and the dialog stays as it is. Anything else (Cancel, Escape, the window's cross) writes nothing.
  void done(int result) override;

 private:
  // All pages are made at once, for the order of the tab stops, but each is read when it is seen first. A
  // page is named by its PagePosition.
  QWidget* makePage(int page);
  void turnTo(int page);
  void open(int page);
  bool confirmsOncePressedControlChanges();
  bool save();

  SettingsSheet& m_sheet;
  QTabWidget* m_tabs;                                  // this and the pages are owned by the dialog
  std::array<ChoicePage*, pageCount> m_choicePages{};  // null for the two others
  MessagesPage* m_messagesPage = nullptr;
  AboutPage* m_aboutPage = nullptr;
  int m_active;  // the PagePosition of the page in sight
};

// Shows the sheet and returns when it is closed; the remembered page is written then.
void showSettingsDialog(SettingsSheet& sheet);
