// Implements the settings sheet on Linux.
#include "host/sheet/linux/settingsDialog.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

#include "host/programVersion.h"
#include "host/sheet/linux/sheetIcon.h"
#include "host/sheet/sheetPages.h"

namespace {

// What presses a tab or a button together with Alt, on every page: the tabs by position, then OK and Cancel.
// The letters of the tabs are chosen so that each control of each page finds another one.
constexpr char tabLetters[] = "MGBSQPTA";
constexpr char buttonLetters[] = "OC";

QString marked(const QString& text, char letter) {
  return QString(text).insert(text.indexOf(letter, 0, Qt::CaseInsensitive), '&');
}

QDialogButtonBox* makeButtons(QDialog& dialog) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setText(marked("OK", buttonLetters[0]));
  buttons->button(QDialogButtonBox::Cancel)->setText(marked("Cancel", buttonLetters[1]));
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  return buttons;
}

}  // namespace

SettingsDialog::SettingsDialog(SettingsSheet& sheet)
    : m_sheet(sheet), m_tabs(new QTabWidget), m_active(sheet.startPage()) {
  setWindowTitle(QString::fromStdString(sheetCaption()));
  setWindowIcon(sheetIcon());
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_tabs);
  for (int i = 0; i < pageCount; ++i) {
    const QString title = sheetPages()[static_cast<std::size_t>(i)].title;
    QWidget* page = makePage(i);
    page->setAccessibleName(title);
    m_tabs->addTab(page, marked(title, tabLetters[i]));
  }
  layout->addWidget(makeButtons(*this));
  // All tabs are to be seen; the tab widget itself asks for less, since it can scroll them.
  const int frame = m_tabs->style()->pixelMetric(QStyle::PM_TabBarBaseHeight);
  resize(sizeHint().expandedTo(
      {m_tabs->tabBar()->sizeHint().width() + 2 * layout->contentsMargins().left() + frame, 0}));
  m_tabs->setCurrentIndex(m_active);
  open(m_active);
  SettingsSheet::pageSwitched(m_active);
  connect(m_tabs, &QTabWidget::currentChanged, this, [this](int page) { turnTo(page); });
}

QWidget* SettingsDialog::makePage(int page) {
  const SheetPage& described = sheetPages()[static_cast<std::size_t>(page)];
  const Accelerators accelerators(QString(tabLetters) + buttonLetters);
  switch (page) {
    case messagesPage:
      return m_messagesPage = new MessagesPage(described, accelerators, m_sheet.messages());
    case aboutPage:
      return m_aboutPage = new AboutPage;
    default:
      return m_choicePages[static_cast<std::size_t>(page)] =
                 new ChoicePage(described, accelerators, [this, page](int id) { m_sheet.clicked(page, id); });
  }
}

void SettingsDialog::turnTo(int page) {
  SettingsSheet::pageSwitched(m_active);
  m_active = page;
  if (!m_sheet.isOpen(page)) {
    open(page);
  }
  SettingsSheet::pageSwitched(page);
}

void SettingsDialog::open(int page) {
  const std::vector<int> checked = m_sheet.open(page);
  if (page == messagesPage) {
    m_messagesPage->refresh();
  } else if (page == aboutPage) {
    m_aboutPage->open(m_sheet.settingsFile());
  } else {
    m_choicePages[static_cast<std::size_t>(page)]->setChecked(checked);
  }
}

bool SettingsDialog::save() {
  for (int i = 0; i < pageCount; ++i) {
    if (!m_sheet.isOpen(i)) {
      continue;
    }
    if (i == messagesPage) {
      m_messagesPage->store();
    }
    const ChoicePage* page = m_choicePages[static_cast<std::size_t>(i)];
    m_sheet.collect(i, page != nullptr ? page->checked() : std::vector<int>{});
  }
  if (m_sheet.commit()) {
    return true;
  }
  QMessageBox box(QMessageBox::Warning, programName, QString::fromStdString(m_sheet.failureText()),
                  QMessageBox::Ok, this);
  box.setTextFormat(Qt::PlainText);  // a path may look like markup
  box.exec();
  return false;
}

// A control that is chosen by its letter is shown pressed for a tenth of a second before it changes. Who
// confirms meanwhile means the changed one.
bool SettingsDialog::confirmsOncePressedControlChanges() {
  for (QAbstractButton* button : m_tabs->findChildren<QAbstractButton*>()) {
    if (button->isDown()) {
      connect(button, &QAbstractButton::released, this, &QDialog::accept,
              static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
      return true;
    }
  }
  return false;
}

void SettingsDialog::done(int result) {
  if (result == Accepted && (confirmsOncePressedControlChanges() || !save())) {
    return;
  }
  SettingsSheet::pageSwitched(m_active);
  QDialog::done(result);
}

void showSettingsDialog(SettingsSheet& sheet) {
  SettingsDialog(sheet).exec();
  sheet.rememberPage();
}
