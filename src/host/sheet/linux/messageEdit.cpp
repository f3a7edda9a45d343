// Implements the edit for a message.
#include "host/sheet/linux/messageEdit.h"

#include <QKeyEvent>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "host/sheet/messageText.h"

namespace {

constexpr int limit = static_cast<int>(maxMessageCharacters);

bool isEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// The document counts a line break as one character, and one more at its end.
int lengthOf(const QTextDocument& document) {
  return document.characterCount() - 1 + document.blockCount() - 1;
}

}  // namespace

MessageEdit::MessageEdit() {
  setTabChangesFocus(true);
  connect(document(), &QTextDocument::contentsChange, this,
          [this](int position, int, int added) { m_endOfInsertion = position + added; });
  connect(this, &QPlainTextEdit::textChanged, this, [this] { cutOverflow(); });
}

void MessageEdit::cutOverflow() {
  if (lengthOf(*document()) <= limit) {
    return;
  }
  QTextCursor cursor(document());
  cursor.joinPreviousEditBlock();
  cursor.setPosition(std::min(m_endOfInsertion, document()->characterCount() - 1));
  while (lengthOf(*document()) > limit && cursor.position() > 0) {
    cursor.deletePreviousChar();
  }
  cursor.endEditBlock();
}

void MessageEdit::keyPressEvent(QKeyEvent* event) {
  if (!isEnter(*event)) {
    QPlainTextEdit::keyPressEvent(event);
  } else if (event->modifiers().testFlag(Qt::ControlModifier)) {
    textCursor().insertBlock();
    ensureCursorVisible();
  } else {
    event->ignore();
  }
}

std::string MessageEdit::message() const {
  // The plain text would have blanks for no-break spaces.
  return limitedText(document()->toRawText().replace(QChar(QChar::ParagraphSeparator), "\r\n"));
}

void MessageEdit::setMessage(const std::string& message) {
  setPlainText(QString::fromStdString(message));
}

QSize MessageEdit::sizeHint() const {
  constexpr int lines = 5;
  return {QPlainTextEdit::sizeHint().width(), lines * fontMetrics().lineSpacing()};
}

std::string limitedText(const QString& text) {
  QString cut = text.left(limit);
  if (!cut.isEmpty() && cut.size() < text.size() && cut.back().isHighSurrogate()) {
    cut.chop(1);
  }
  return cut.toStdString();
}
