// A fixture that shows the settings dialog and works it as a user does.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "host/sheet/linux/settingsDialog.h"
#include "support/settingsGroups.h"

class DialogTest : public PrivateFolders {
 protected:
  DialogTest();

  // Opens the dialog anew, on the page that the settings remember.
  void show();
  void show(int page);
  QTabWidget& tabs() const { return *dialog->findChild<QTabWidget*>(); }
  QWidget* page() const { return tabs().currentWidget(); }
  void turnTo(int page) const { tabs().setCurrentIndex(page); }

  // The control of the active page with this id; it must be there.
  template <class Control>
  Control& control(int id) const {
    auto* found = page()->findChild<Control*>(QString::number(id));
    if (found == nullptr) {
      throw std::logic_error("no control " + std::to_string(id) + " on the page");
    }
    return *found;
  }
  QAbstractButton& button(int id) const { return control<QAbstractButton>(id); }
  QPlainTextEdit& message() const { return control<QPlainTextEdit>(controlIds::message); }
  QLineEdit& bottomLine() const { return control<QLineEdit>(controlIds::bottomLine); }
  void click(int id) const;
  // Clicks OK or Cancel.
  void ok() const;
  void cancel() const;
  // OK where a message box is expected: the box is confirmed, and its text returned.
  std::string okAndReadBox() const;
  void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
  bool isOpen() const { return dialog->isVisible(); }

  // Opens the dialog on a page, clicks, and confirms.
  void choose(int page, const std::vector<int>& ids);
  // Stores a list of these messages, each with the bottom line "<message> line".
  static void storeMessages(const std::vector<std::string>& messages);

  static std::string settingsText();
  static std::string inFile(const std::string& key);

  SoundPreview preview;
  std::unique_ptr<SettingsSheet> sheet;
  std::unique_ptr<SettingsDialog> dialog;
};

// What a control shows: without the mark of its accelerator. Empty for what has no text.
std::string shownText(const QString& text);
std::string textOf(const QWidget& widget);
