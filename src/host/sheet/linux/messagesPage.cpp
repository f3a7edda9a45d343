// Implements the Messages page.
#include "host/sheet/linux/messagesPage.h"

#include <QLabel>
#include <QVBoxLayout>

#include "host/sheet/messageText.h"

namespace {

// What follows the first line of a label is a hint, which names keys of its own.
QString markedInFirstLine(const QString& text, Accelerators& accelerators) {
  const auto end = text.indexOf('\n');
  const QString hint = end < 0 ? "" : text.mid(end);
  const QString name = text.left(text.size() - hint.size());
  return (name.isEmpty() ? name : accelerators.mark(name)) + withoutAccelerator(hint);
}

}  // namespace

MessagesPage::MessagesPage(const SheetPage& page, Accelerators accelerators, MessageEditor& editor)
    : m_editor(editor), m_frame(new QGroupBox), m_entry(new QVBoxLayout), m_buttons(new QHBoxLayout) {
  auto* layout = new QVBoxLayout(this);
  m_frame->setLayout(m_entry);
  layout->addWidget(m_frame);
  layout->addLayout(m_buttons);
  for (const SheetControl& control : page.controls) {
    add(control, accelerators);
  }
}

void MessagesPage::add(const SheetControl& control, Accelerators& accelerators) {
  const QString text = QString::fromUtf8(control.text);
  switch (control.kind) {
    case ControlKind::groupBox:
      m_frame->setObjectName(QString::number(control.id));
      m_frame->setTitle(withoutAccelerator(text));
      break;
    case ControlKind::button:
      addButton(control.id, accelerators.mark(text));
      break;
    case ControlKind::label:
      addLabel(control.id, markedInFirstLine(text, accelerators));
      break;
    default:
      addEdit(control);
      break;
  }
}

void MessagesPage::addLabel(int id, const QString& text) {
  m_lastLabel = new QLabel(text);
  if (id != controlIds::none) {
    m_lastLabel->setObjectName(QString::number(id));
  }
  m_entry->addWidget(m_lastLabel);
}

void MessagesPage::addEdit(const SheetControl& control) {
  QWidget* edit = nullptr;
  if (control.kind == ControlKind::multiLineEdit) {
    edit = m_message = new MessageEdit;
  } else {
    edit = m_bottomLine = new QLineEdit;
    m_bottomLine->setMaxLength(static_cast<int>(maxMessageCharacters));
  }
  edit->setObjectName(QString::number(control.id));
  // The first line of the label, without the hint below it.
  edit->setAccessibleName(m_lastLabel->text().remove("&").section('\n', 0, 0).remove(":"));
  m_lastLabel->setBuddy(edit);
  m_entry->addWidget(edit);
}

void MessagesPage::addButton(int id, const QString& text) {
  auto* button = new QPushButton(text);
  button->setObjectName(QString::number(id));
  button->setAutoDefault(false);  // Enter stays with OK
  connect(button, &QPushButton::clicked, this, [this, id] { press(id); });
  m_buttons->addWidget(button);
}

void MessagesPage::press(int button) {
  m_editor.press(button, m_message->message(), limitedText(m_bottomLine->text()));
  refresh();
}

void MessagesPage::store() {
  m_editor.storeEdits(m_message->message(), limitedText(m_bottomLine->text()));
}

QPushButton* MessagesPage::button(int id) const {
  return findChild<QPushButton*>(QString::number(id));
}

// A control that is switched off must not hold the focus: the keyboard would be dead.
void MessagesPage::enable(int id, bool enabled) {
  if (!enabled && button(id)->hasFocus()) {
    button(controlIds::newMessage)->setFocus();
  }
  button(id)->setEnabled(enabled);
}

void MessagesPage::refresh() {
  const MessageEditor::View view = m_editor.view();
  m_message->setMessage(view.message);
  m_bottomLine->setText(QString::fromStdString(view.bottomLine));
  m_editor.filled(m_message->message(), limitedText(m_bottomLine->text()));
  m_frame->setTitle(QString::fromStdString(view.caption));
  m_message->setEnabled(view.hasEntry);
  m_bottomLine->setEnabled(view.hasEntry);
  enable(controlIds::deleteMessage, view.hasEntry);
  enable(controlIds::previousMessage, view.hasPrevious);
  enable(controlIds::nextMessage, view.hasNext);
}
