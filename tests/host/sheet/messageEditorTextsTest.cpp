// Tests what the message editor makes of the texts that are typed, and when it saves them.
#include <gmock/gmock.h>

#include "host/sheet/messageText.h"
#include "messageEditorFixture.h"

using testing::ElementsAre;

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
  EXPECT_EQ(editor.view().caption, "Message 1 of 2");
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
