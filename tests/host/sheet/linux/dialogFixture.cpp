// Implements the fixture of the settings dialog.
#include "host/sheet/linux/dialogFixture.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

DialogTest::DialogTest() {
  lastActivePage = 0;
}

void DialogTest::show() {
  dialog.reset();
  sheet = std::make_unique<SettingsSheet>(xplUserSettings(), preview);
  dialog = std::make_unique<SettingsDialog>(*sheet);
  dialog->show();
  dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
}

void DialogTest::show(int page) {
  cAppSettings().activeDialogTab.write(page);
  show();
}

void DialogTest::click(int id) const {
  QTest::mouseClick(&button(id), Qt::LeftButton, Qt::NoModifier, QPoint(8, button(id).height() / 2));
}

void DialogTest::ok() const {
  QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

void DialogTest::cancel() const {
  QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel), Qt::LeftButton);
}

std::string DialogTest::okAndReadBox() const {
  std::string text;
  QTimer::singleShot(0, [&text] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      text = box->text().toStdString();
      box->accept();
    }
  });
  ok();
  return text;
}

void DialogTest::press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) const {
  QTest::keyClick(&widget, key, modifiers);
}

void DialogTest::choose(int page, const std::vector<int>& ids) {
  show(page);
  for (const int id : ids) {
    click(id);
  }
  ok();
  EXPECT_FALSE(isOpen());
  sheet->rememberPage();
}

void DialogTest::storeMessages(const std::vector<std::string>& messages) {
  xplUserSettings().set("msg_defaultMessagesAdded", "1");
  cMessageSettings list;
  for (const std::string& text : messages) {
    list.add({text, text + " line"});
  }
  list.save();
}

std::string DialogTest::settingsText() {
  return readFile(xplUserSettings().filename());
}

std::string DialogTest::inFile(const std::string& key) {
  return xplSettings(xplSettings::scopeUser).get(key).value_or("(none)");
}

std::string shownText(const QString& text) {
  return QString(text).replace("&&", "\1").remove('&').replace("\1", "&").toStdString();
}

std::string textOf(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    return shownText(button->text());
  }
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
    return shownText(box->title());
  }
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    return shownText(label->text());
  }
  return "";
}
