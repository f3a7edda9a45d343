// Implements the editing of the list of messages.
#include "host/sheet/messageEditor.h"

#include <algorithm>

#include "host/sheet/controlIds.h"
#include "host/sheet/messageText.h"
#include "support/log.h"

MessageEditor::View MessageEditor::view() const {
  const std::size_t index = m_messages.currentIndex;
  const sMessage* entry = m_messages.get(index);
  View view{};
  if (entry != nullptr) {
    view.message = entry->message;
    view.bottomLine = entry->bottomLine;
    view.hasEntry = true;
    view.hasPrevious = index > 0;
    view.hasNext = index + 1 < m_messages.count();
  }
  view.caption = stringFormat("Message %i of %i", view.hasEntry ? static_cast<int>(index) + 1 : 0,
                              static_cast<int>(m_messages.count()));
  return view;
}

void MessageEditor::load() {
  m_messages.load();
  forgetFilled();
}

void MessageEditor::filled(const std::string& message, const std::string& bottomLine) {
  m_filledMessage = message;
  m_filledBottomLine = bottomLine;
}

void MessageEditor::forgetFilled() {
  m_filledMessage.reset();
  m_filledBottomLine.reset();
}

void MessageEditor::storeEdits(const std::string& message, const std::string& bottomLine) {
  const sMessage* entry = m_messages.get(m_messages.currentIndex);
  if (entry == nullptr) {
    return;
  }
  sMessage edited = *entry;
  if (message != m_filledMessage) {
    edited.message = tidyMessage(message);
  }
  if (bottomLine != m_filledBottomLine) {
    edited.bottomLine = tidyBottomLine(bottomLine);
  }
  m_messages.replace(m_messages.currentIndex, edited);
  // The sheet may stay open after this; going back to the text of before is a change then.
  filled(message, bottomLine);
}

void MessageEditor::press(int button, const std::string& message, const std::string& bottomLine) {
  if (button == controlIds::deleteMessage) {
    deleteCurrent();
    forgetFilled();
    return;
  }
  storeEdits(message, bottomLine);
  forgetFilled();
  const View now = view();
  if (button == controlIds::newMessage) {
    addNew();
  } else if (button == controlIds::nextMessage && now.hasNext) {
    ++m_messages.currentIndex;
  } else if (button == controlIds::previousMessage && now.hasPrevious) {
    --m_messages.currentIndex;
  }
}

void MessageEditor::addNew() {
  const std::size_t index = m_messages.count() == 0 ? 0 : m_messages.currentIndex + 1;
  m_messages.insert(index, {});
  m_messages.currentIndex = index;
}

void MessageEditor::deleteCurrent() {
  m_messages.remove(m_messages.currentIndex);
  const std::size_t count = m_messages.count();
  m_messages.currentIndex = count == 0 ? 0 : std::min(m_messages.currentIndex, count - 1);
}
