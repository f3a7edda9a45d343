// The edit for a message of several lines.
#pragma once

#include <QPlainTextEdit>
#include <string>

// Takes at most maxMessageCharacters characters, a line break counting as two; what is typed or pasted beyond
// is left out. Ctrl+Enter breaks the line, Enter alone is the dialog's, and the tabulator leaves the edit.
class MessageEdit : public QPlainTextEdit {
 public:
  MessageEdit();

  // UTF-8; line breaks are "\r\n".
  std::string message() const;
  void setMessage(const std::string& message);

  // A few lines high; it grows with the dialog.
  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void cutOverflow();

  int m_endOfInsertion = 0;  // position behind what came last, in the document's characters
};

// The text in UTF-8, cut to maxMessageCharacters UTF-16 units; no letter is cut in two.
std::string limitedText(const QString& text);
