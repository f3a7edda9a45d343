// Implements the pages of radio buttons and check boxes.
#include "host/sheet/linux/choicePage.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

ChoicePage::ChoicePage(const SheetPage& page, Accelerators accelerators, std::function<void(int)> clicked)
    : m_clicked(std::move(clicked)), m_layout(new QVBoxLayout(this)) {
  for (const SheetControl& control : page.controls) {
    add(control, accelerators);
  }
  m_layout->addStretch();
}

void ChoicePage::add(const SheetControl& control, Accelerators& accelerators) {
  if (control.kind == ControlKind::groupBox) {
    addFrame(control.text);
  } else if (control.kind == ControlKind::label) {
    auto* label = new QLabel(QString::fromUtf8(control.text));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    m_layout->addWidget(label);
  } else {
    addChoice(control, accelerators.mark(QString::fromUtf8(control.text)));
  }
}

void ChoicePage::addFrame(const char* title) {
  m_frame = new QGroupBox(withoutAccelerator(QString::fromUtf8(title)));
  m_framed = ControlKind::label;
  new QVBoxLayout(m_frame);
  m_layout->addWidget(m_frame);
}

void ChoicePage::addChoice(const SheetControl& control, const QString& text) {
  QAbstractButton* button = nullptr;
  if (control.kind == ControlKind::radioButton) {
    button = new QRadioButton(text);
  } else {
    button = new QCheckBox(text);
  }
  button->setObjectName(QString::number(control.id));
  connect(button, &QAbstractButton::clicked, this, [this, id = control.id] { m_clicked(id); });
  m_choices.push_back({control.id, button});
  // A frame holds controls of one kind: a check box after radio buttons stands below it.
  const bool isFramed = m_frame != nullptr && (m_framed == ControlKind::label || m_framed == control.kind);
  if (isFramed) {
    m_framed = control.kind;
  }
  (isFramed ? m_frame->layout() : m_layout)->addWidget(button);
}

void ChoicePage::setChecked(const std::vector<int>& ids) {
  for (const Choice& choice : m_choices) {
    const bool isChecked = std::ranges::find(ids, choice.id) != ids.end();
    choice.button->setChecked(isChecked);
    if (choice.button->autoExclusive()) {
      // The tabulator stops at the radio button that is checked alone; the toolkit sees to it only later.
      choice.button->setFocusPolicy(isChecked ? Qt::StrongFocus : Qt::ClickFocus);
    }
  }
}

std::vector<int> ChoicePage::checked() const {
  std::vector<int> ids;
  for (const Choice& choice : m_choices) {
    if (choice.button->isChecked()) {
      ids.push_back(choice.id);
    }
  }
  return ids;
}
