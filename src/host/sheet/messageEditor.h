// Edits the list of messages, one entry at a time. Texts are UTF-8 on Linux, the system code page on Windows.
#pragma once

#include <optional>
#include <string>

#include "support/settingsGroups.h"

class MessageEditor {
 public:
  // What the page shows. Line breaks in texts are "\r\n".
  struct View {
    std::string message;
    std::string bottomLine;
    std::string caption;  // of the frame: which of how many messages this is
    bool hasEntry;        // both edits and "Delete" are enabled
    bool hasPrevious;
    bool hasNext;
  };

  // Borrows the store, which must outlive the editor.
  explicit MessageEditor(xplSettings& store) : m_messages(store) {}

  // Reads the list (and, the first time ever, fills and saves it); the first entry is the current one.
  void load();
  View view() const;
  // What the two edits give back right after they were filled with the current entry. It may differ from the
  // entry, since an edit does not keep every byte of a text that was written by hand.
  void filled(const std::string& message, const std::string& bottomLine);
  // Takes what stands in the two edits into the current entry, tidied; nothing where the list is empty. A
  // text that stands as the edit was filled is nobody's change, and the entry keeps it byte for byte.
  void storeEdits(const std::string& message, const std::string& bottomLine);
  // What one of the page's four buttons does (its id), with what stands in the two edits. "New" puts an empty
  // entry after the current one; "Delete" moves to the entry after the deleted one, or to the last.
  void press(int button, const std::string& message, const std::string& bottomLine);
  // Writes the list into the store; where the file cannot be written that is logged, and the list stays.
  void save() { m_messages.save(); }

 private:
  void addNew();
  void deleteCurrent();
  void forgetFilled();

  cMessageSettings m_messages;
  // What stands in the edits without having been changed; nothing before they are filled.
  std::optional<std::string> m_filledMessage;
  std::optional<std::string> m_filledBottomLine;
};
