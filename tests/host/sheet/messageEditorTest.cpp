// Tests the editing of the list of messages.
#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/sheet/controlIds.h"
#include "host/sheet/messageEditor.h"
#include "host/sheet/messageText.h"

using testing::ElementsAre;

namespace {

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

TEST_F(MessageEditing, AnEmptyListDisablesEverythingButNew) {
  loadList({});
  const auto view = editor.view();
  EXPECT_FALSE(view.hasEntry);
  EXPECT_FALSE(view.hasPrevious);
  EXPECT_FALSE(view.hasNext);
  EXPECT_EQ(view.message, "");
  EXPECT_EQ(view.bottomLine, "");
  EXPECT_EQ(view.position, "Message 0 of 0");
}

TEST_F(MessageEditing, AFreshInstallationShowsTheFirstOfTwo) {
  xplUserSettings().set("msg_defaultMessagesAdded", "0");
  editor.load();
  EXPECT_EQ(editor.view().message, "Your message\r\nhere");
  EXPECT_EQ(editor.view().position, "Message 1 of 2");
}

TEST_F(MessageEditing, OneEntryHasNoNeighbours) {
  loadList({"one"});
  const auto view = editor.view();
  EXPECT_TRUE(view.hasEntry);
  EXPECT_FALSE(view.hasPrevious);
  EXPECT_FALSE(view.hasNext);
  EXPECT_EQ(view.position, "Message 1 of 1");
}

TEST_F(MessageEditing, TheMiddleHasBothNeighbours) {
  loadList({"one", "two", "three"});
  press(controlIds::nextMessage);
  const auto view = editor.view();
  EXPECT_EQ(view.message, "two");
  EXPECT_EQ(view.bottomLine, "two line");
  EXPECT_TRUE(view.hasPrevious);
  EXPECT_TRUE(view.hasNext);
  EXPECT_EQ(view.position, "Message 2 of 3");
}

TEST_F(MessageEditing, NextAndPreviousStopAtTheEnds) {
  loadList({"one", "two"});
  press(controlIds::previousMessage);
  EXPECT_EQ(editor.view().position, "Message 1 of 2");
  press(controlIds::nextMessage);
  press(controlIds::nextMessage);
  EXPECT_EQ(editor.view().position, "Message 2 of 2");
  press(controlIds::previousMessage);
  EXPECT_EQ(editor.view().position, "Message 1 of 2");
}

TEST_F(MessageEditing, NextAndPreviousStoreWhatWasTyped) {
  loadList({"one", "two"});
  press(controlIds::nextMessage, "uno", "primo");
  press(controlIds::previousMessage, "due", "secondo");
  EXPECT_EQ(editor.view().message, "uno");
  EXPECT_THAT(listAfterSaving(), ElementsAre("uno|primo", "due|secondo"));
}

TEST_F(MessageEditing, NewComesAfterTheCurrentEntryAndStoresWhatWasTyped) {
  loadList({"one", "two"});
  press(controlIds::newMessage, "uno", "primo");
  EXPECT_EQ(editor.view().message, "");
  EXPECT_EQ(editor.view().bottomLine, "");
  EXPECT_EQ(editor.view().position, "Message 2 of 3");
  editor.storeEdits("between", "b");
  EXPECT_THAT(listAfterSaving(), ElementsAre("uno|primo", "between|b", "two|two line"));
}

TEST_F(MessageEditing, NewOnAnEmptyListIsTheFirst) {
  loadList({});
  press(controlIds::newMessage, "", "");
  EXPECT_TRUE(editor.view().hasEntry);
  EXPECT_EQ(editor.view().position, "Message 1 of 1");
  EXPECT_THAT(listAfterSaving(), ElementsAre("|"));
}

TEST_F(MessageEditing, DeleteShowsTheEntryAfterIt) {
  loadList({"one", "two", "three"});
  press(controlIds::deleteMessage, "typed in vain", "");
  EXPECT_EQ(editor.view().message, "two");
  EXPECT_EQ(editor.view().position, "Message 1 of 2");
  EXPECT_THAT(listAfterSaving(), ElementsAre("two|two line", "three|three line"));
}

TEST_F(MessageEditing, DeleteOfTheLastEntryMovesBack) {
  loadList({"one", "two"});
  press(controlIds::nextMessage);
  press(controlIds::deleteMessage);
  EXPECT_EQ(editor.view().message, "one");
  EXPECT_EQ(editor.view().position, "Message 1 of 1");
}

TEST_F(MessageEditing, DeleteOfTheOnlyEntryLeavesAnEmptyListForGood) {
  loadList({"one"});
  press(controlIds::deleteMessage);
  EXPECT_FALSE(editor.view().hasEntry);
  press(controlIds::deleteMessage);
  press(controlIds::nextMessage, "nobody", "nothing");
  EXPECT_EQ(editor.view().position, "Message 0 of 0");
  EXPECT_TRUE(listAfterSaving().empty());
  EXPECT_EQ(xplUserSettings().get("messagesCount"), "0");
}

TEST_F(MessageEditing, NothingIsWrittenBeforeSaving) {
  loadList({"one"});
  press(controlIds::newMessage, "changed", "");
  EXPECT_THAT(savedMessages(), ElementsAre("one|one line"));
}

TEST_F(MessageEditing, LoadingAgainForgetsWhatWasNotSaved) {
  loadList({"one", "two"});
  press(controlIds::nextMessage, "changed", "");
  editor.load();
  EXPECT_EQ(editor.view().message, "one");
  EXPECT_EQ(editor.view().position, "Message 1 of 2");
}

TEST_F(MessageEditing, WhatStandsAsItWasFilledIsKeptByteForByte) {
  loadList({"a\tb\x01\xE9", "two"});
  editor.filled("shown otherwise", "and this");
  press(controlIds::nextMessage, "shown otherwise", "changed\t");
  EXPECT_THAT(listAfterSaving(), ElementsAre("a\tb\x01\xE9|changed ", "two|two line"));
}

TEST_F(MessageEditing, WhatWasFilledCountsForItsEntryAlone) {
  loadList({"one", "two"});
  editor.filled("uno", "primo");
  press(controlIds::nextMessage, "uno", "primo");
  editor.storeEdits("uno", "primo");
  EXPECT_THAT(listAfterSaving(), ElementsAre("one|one line", "uno|primo"));
}

TEST_F(MessageEditing, GoingBackToTheFirstTextAfterAStoreIsAChange) {
  loadList({"one"});
  editor.filled("one", "one line");
  editor.storeEdits("other", "one line");
  editor.storeEdits("one", "one line");
  EXPECT_THAT(listAfterSaving(), ElementsAre("one|one line"));
}

TEST_F(MessageEditing, TextsAreTidied) {
  loadList({"one"});
  editor.storeEdits("a\nb\x01", "c\r\nd\t");
  EXPECT_EQ(editor.view().message, "a\r\nb");
  EXPECT_EQ(editor.view().bottomLine, "c d ");
}

TEST_F(MessageEditing, LongTextsWithLineBreaksSurviveTheFile) {
  loadList({"one"});
  std::string text;
  while (text.size() + 6 <= maxMessageCharacters) {
    text += "a=\t\r\n";
    text.erase(text.size() - 3, 1);  // tabs would become blanks
  }
  text.resize(maxMessageCharacters, 'x');
  editor.storeEdits(text, std::string(maxMessageCharacters, '='));
  editor.save();
  xplCloseSettings();
  cMessageSettings list;
  list.load();
  ASSERT_EQ(list.count(), 1U);
  EXPECT_EQ(list.get(0)->message, text);
  EXPECT_EQ(list.get(0)->bottomLine, std::string(maxMessageCharacters, '='));
}

TEST_F(MessageEditing, ThousandsOfMessagesAreEdited) {
  std::vector<std::string> many;
  for (int i = 0; i < 5000; ++i) {
    many.push_back("message " + std::to_string(i));
  }
  loadList(many);
  for (int i = 0; i < 2500; ++i) {
    press(controlIds::nextMessage);
  }
  press(controlIds::newMessage);
  press(controlIds::deleteMessage);
  EXPECT_EQ(editor.view().message, "message 2501");
  EXPECT_EQ(editor.view().position, "Message 2502 of 5000");
  EXPECT_EQ(listAfterSaving().size(), 5000U);
}

}  // namespace
