// What the tests of the message editor share: a list of messages that is edited, and what is saved of it.
#pragma once

#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "host/sheet/controlIds.h"
#include "host/sheet/messageEditor.h"

class MessageEditing : public PrivateFolders {
 protected:
  MessageEditing() {
    xplUserSettings().set("msg_defaultMessagesAdded", "1");
    xplUserSettings().set("messagesCount", 0);
  }

  // Loads a list with these messages, each with the bottom line "<message> line".
  void loadList(const std::vector<std::string>& messages) {
    cMessageSettings list;
    for (const auto& message : messages) {
      list.add({message, message + " line"});
    }
    list.save();
    editor.load();
  }
  // Presses a button with the edits as they stand.
  void press(int button) { press(button, editor.view().message, editor.view().bottomLine); }
  void press(int button, const std::string& message, const std::string& bottomLine) {
    editor.press(button, message, bottomLine);
  }
  static std::vector<std::string> savedMessages() {
    cMessageSettings list;
    list.load();
    std::vector<std::string> messages;
    for (std::size_t i = 0; i < list.count(); ++i) {
      messages.push_back(list.get(i)->message + "|" + list.get(i)->bottomLine);
    }
    return messages;
  }
  std::vector<std::string> listAfterSaving() {
    editor.save();
    return savedMessages();
  }

  MessageEditor editor{xplUserSettings()};
};
