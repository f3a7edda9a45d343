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
  view.position = stringFormat("Message %i of %i", view.hasEntry ? static_cast<int>(index) + 1 : 0,
                               static_cast<int>(m_messages.count()));
  return view;
}

void MessageEditor::storeEdits(const std::string& message, const std::string& bottomLine) {
  m_messages.replace(m_messages.currentIndex, {tidyMessage(message), tidyBottomLine(bottomLine)});
}

void MessageEditor::press(int button, const std::string& message, const std::string& bottomLine) {
  if (button == controlIds::deleteMessage) {
    deleteCurrent();
    return;
  }
  storeEdits(message, bottomLine);
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
