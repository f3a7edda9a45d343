// Tests the message editor's walk through the list, and its buttons.
#include <gmock/gmock.h>

#include "messageEditorFixture.h"

using testing::ElementsAre;

TEST_F(MessageEditing, AnEmptyListDisablesEverythingButNew) {
  loadList({});
  const auto view = editor.view();
  EXPECT_FALSE(view.hasEntry);
  EXPECT_FALSE(view.hasPrevious);
  EXPECT_FALSE(view.hasNext);
  EXPECT_EQ(view.message, "");
  EXPECT_EQ(view.bottomLine, "");
  EXPECT_EQ(view.caption, "Message 0 of 0");
}

TEST_F(MessageEditing, AFreshInstallationShowsTheFirstOfTwo) {
  xplUserSettings().set("msg_defaultMessagesAdded", "0");
  editor.load();
  EXPECT_EQ(editor.view().message, "Your message\r\nhere");
  EXPECT_EQ(editor.view().caption, "Message 1 of 2");
}

TEST_F(MessageEditing, OneEntryHasNoNeighbours) {
  loadList({"one"});
  const auto view = editor.view();
  EXPECT_TRUE(view.hasEntry);
  EXPECT_FALSE(view.hasPrevious);
  EXPECT_FALSE(view.hasNext);
  EXPECT_EQ(view.caption, "Message 1 of 1");
}

TEST_F(MessageEditing, TheMiddleHasBothNeighbours) {
  loadList({"one", "two", "three"});
  press(controlIds::nextMessage);
  const auto view = editor.view();
  EXPECT_EQ(view.message, "two");
  EXPECT_EQ(view.bottomLine, "two line");
  EXPECT_TRUE(view.hasPrevious);
  EXPECT_TRUE(view.hasNext);
  EXPECT_EQ(view.caption, "Message 2 of 3");
}

TEST_F(MessageEditing, NextAndPreviousStopAtTheEnds) {
  loadList({"one", "two"});
  press(controlIds::previousMessage);
  EXPECT_EQ(editor.view().caption, "Message 1 of 2");
  press(controlIds::nextMessage);
  press(controlIds::nextMessage);
  EXPECT_EQ(editor.view().caption, "Message 2 of 2");
  press(controlIds::previousMessage);
  EXPECT_EQ(editor.view().caption, "Message 1 of 2");
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
  EXPECT_EQ(editor.view().caption, "Message 2 of 3");
  editor.storeEdits("between", "b");
  EXPECT_THAT(listAfterSaving(), ElementsAre("uno|primo", "between|b", "two|two line"));
}

TEST_F(MessageEditing, NewOnAnEmptyListIsTheFirst) {
  loadList({});
  press(controlIds::newMessage, "", "");
  EXPECT_TRUE(editor.view().hasEntry);
  EXPECT_EQ(editor.view().caption, "Message 1 of 1");
  EXPECT_THAT(listAfterSaving(), ElementsAre("|"));
}

TEST_F(MessageEditing, DeleteShowsTheEntryAfterIt) {
  loadList({"one", "two", "three"});
  press(controlIds::deleteMessage, "typed in vain", "");
  EXPECT_EQ(editor.view().message, "two");
  EXPECT_EQ(editor.view().caption, "Message 1 of 2");
  EXPECT_THAT(listAfterSaving(), ElementsAre("two|two line", "three|three line"));
}

TEST_F(MessageEditing, DeleteOfTheLastEntryMovesBack) {
  loadList({"one", "two"});
  press(controlIds::nextMessage);
  press(controlIds::deleteMessage);
  EXPECT_EQ(editor.view().message, "one");
  EXPECT_EQ(editor.view().caption, "Message 1 of 1");
}

TEST_F(MessageEditing, DeleteOfTheOnlyEntryLeavesAnEmptyListForGood) {
  loadList({"one"});
  press(controlIds::deleteMessage);
  EXPECT_FALSE(editor.view().hasEntry);
  press(controlIds::deleteMessage);
  press(controlIds::nextMessage, "nobody", "nothing");
  EXPECT_EQ(editor.view().caption, "Message 0 of 0");
  EXPECT_TRUE(listAfterSaving().empty());
  EXPECT_EQ(xplUserSettings().get("messagesCount"), "0");
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
  EXPECT_EQ(editor.view().caption, "Message 2502 of 5000");
  EXPECT_EQ(listAfterSaving().size(), 5000U);
}
