// Tests the Messages page under the hands of a user.
#include <QClipboard>
#include <QGroupBox>

#include <gmock/gmock.h>

#include "host/sheet/linux/dialogFixture.h"
#include "host/sheet/messageText.h"

namespace {

namespace id = controlIds;

class MessagesPageTest : public DialogTest {
 protected:
  void showMessages(const std::vector<std::string>& messages) {
    storeMessages(messages);
    show(messagesPage);
  }
  std::string position() const { return control<QGroupBox>(id::messagePosition).title().toStdString(); }
  static void paste(QWidget& edit, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
  }
};

TEST_F(MessagesPageTest, AnEmptyListDisablesEverythingButNew) {
  showMessages({});
  EXPECT_FALSE(message().isEnabled());
  EXPECT_FALSE(bottomLine().isEnabled());
  for (const int control : {id::deleteMessage, id::previousMessage, id::nextMessage}) {
    EXPECT_FALSE(button(control).isEnabled()) << control;
  }
  EXPECT_TRUE(button(id::newMessage).isEnabled());
  EXPECT_EQ(position(), "Message 0 of 0");
  ok();
  EXPECT_EQ(inFile("messagesCount"), "0");
}

TEST_F(MessagesPageTest, TurnsFromMessageToMessage) {
  showMessages({"one", "two", "three"});
  EXPECT_EQ(message().toPlainText(), "one");
  EXPECT_EQ(bottomLine().text(), "one line");
  EXPECT_FALSE(button(id::previousMessage).isEnabled());
  click(id::nextMessage);
  EXPECT_EQ(message().toPlainText(), "two");
  EXPECT_EQ(position(), "Message 2 of 3");
  EXPECT_TRUE(button(id::previousMessage).isEnabled());
  click(id::nextMessage);
  EXPECT_FALSE(button(id::nextMessage).isEnabled());
  click(id::previousMessage);
  EXPECT_EQ(message().toPlainText(), "two");
}

TEST_F(MessagesPageTest, WhatIsTypedIsStored) {
  showMessages({"one", "two"});
  message().selectAll();
  QTest::keyClicks(&message(), "first");
  press(message(), Qt::Key_Return, Qt::ControlModifier);
  QTest::keyClicks(&message(), "second");
  click(id::newMessage);
  EXPECT_EQ(message().toPlainText(), "");
  QTest::keyClicks(&message(), "new");
  QTest::keyClicks(&bottomLine(), "below");
  ok();
  xplUserSettings().set("msg_defaultMessagesAdded", "1");
  EXPECT_EQ(settingsText(),
            "activeDialogTab=1\nbottomline1=one line\nbottomline2=below\nbottomline3=two line\n"
            "message1=first\\r\\nsecond\nmessage2=new\nmessage3=two\nmessagesCount=3\n"
            "msg_defaultMessagesAdded=1\n");
}

TEST_F(MessagesPageTest, EnterInTheMessageConfirmsAndTheTabulatorLeavesIt) {
  showMessages({"one"});
  message().setFocus();
  press(message(), Qt::Key_Tab);
  EXPECT_EQ(dialog->focusWidget(), &bottomLine());
  EXPECT_EQ(message().toPlainText(), "one");
  press(message(), Qt::Key_Return);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(inFile("message1"), "one");
}

TEST_F(MessagesPageTest, CancelForgetsWhatWasTyped) {
  showMessages({"one"});
  message().setPlainText("other");
  click(id::newMessage);
  cancel();
  EXPECT_EQ(inFile("message1"), "one");
  EXPECT_EQ(inFile("messagesCount"), "1");
}

TEST_F(MessagesPageTest, DeleteOfAllLeavesAnEmptyListAndAKeyboardThatWorks) {
  showMessages({"one", "two"});
  button(id::deleteMessage).setFocus();
  press(button(id::deleteMessage), Qt::Key_Space);
  EXPECT_EQ(message().toPlainText(), "two");
  press(button(id::deleteMessage), Qt::Key_Space);
  EXPECT_FALSE(button(id::deleteMessage).isEnabled());
  EXPECT_EQ(dialog->focusWidget(), &button(id::newMessage));
  ok();
  EXPECT_EQ(inFile("messagesCount"), "0");
}

TEST_F(MessagesPageTest, NoMoreIsTypedThanIsKept) {
  std::string text;
  while (text.size() + 5 <= maxMessageCharacters) {
    text += "abc\r\n";
  }
  text.resize(maxMessageCharacters, 'x');
  showMessages({"one"});
  message().setPlainText(QString::fromStdString(text));
  message().moveCursor(QTextCursor::Start);
  QTest::keyClicks(&message(), "y");
  press(message(), Qt::Key_Return, Qt::ControlModifier);
  bottomLine().setText(QString(static_cast<int>(maxMessageCharacters), 'b'));
  QTest::keyClicks(&bottomLine(), "y");
  ok();
  EXPECT_EQ(inFile("message1"), text);
  EXPECT_EQ(inFile("bottomline1"), std::string(maxMessageCharacters, 'b'));
}

TEST_F(MessagesPageTest, OfWhatIsPastedThatIsTakenForWhichThereIsRoom) {
  showMessages({"one"});
  message().setPlainText("begin end");
  message().moveCursor(QTextCursor::Start);
  message().moveCursor(QTextCursor::NextWord);
  paste(message(), QString(6000, 'p'));
  ok();
  const std::string stored = inFile("message1");
  EXPECT_EQ(stored, "begin " + std::string(maxMessageCharacters - 9, 'p') + "end");
}

TEST_F(MessagesPageTest, PastedControlCharactersAreNotStored) {
  showMessages({"one"});
  message().selectAll();
  paste(message(), QString::fromUtf8("a\x01\x1b"
                                     "b\tc\r\nd=\\e"));
  bottomLine().selectAll();
  paste(bottomLine(), "x\ny\x07");
  ok();
  EXPECT_EQ(inFile("message1"), "ab c\r\nd=\\e");
  EXPECT_EQ(inFile("bottomline1"), "x y");
}

TEST_F(MessagesPageTest, LettersOfAllLanguagesAreStoredInUtf8) {
  showMessages({"one"});
  message().setPlainText(QString::fromUtf8("Grüße, 夜空 🌙"));
  ok();
  EXPECT_EQ(inFile("message1"), "Grüße, 夜空 🌙");
  show();
  EXPECT_EQ(message().toPlainText(), QString::fromUtf8("Grüße, 夜空 🌙"));
}

// What a text written by hand may hold and no edit keeps: Latin-1, a no-break space, separators, a tab.
const std::vector<std::string> writtenByHand = {"caf\xE9 \tend",
                                                "no\xC2\xA0"
                                                "break\tx",
                                                "a\xE2\x80\xA8"
                                                "b",
                                                "\xEF\xBB\xBFmark\nline"};

TEST_F(MessagesPageTest, WhatIsOnlyLookedAtStaysByteForByte) {
  showMessages(writtenByHand);
  for (std::size_t i = 1; i < writtenByHand.size(); ++i) {
    click(id::nextMessage);
  }
  click(id::previousMessage);
  ok();
  for (std::size_t i = 0; i < writtenByHand.size(); ++i) {
    EXPECT_EQ(inFile("message" + std::to_string(i + 1)), writtenByHand[i]);
    EXPECT_EQ(inFile("bottomline" + std::to_string(i + 1)), writtenByHand[i] + " line");
  }
}

TEST_F(MessagesPageTest, ANoBreakSpaceSurvivesAnEdit) {
  showMessages({"10\xC2\xA0km"});
  message().moveCursor(QTextCursor::End);
  QTest::keyClicks(&message(), "!");
  press(message(), Qt::Key_Return, Qt::ControlModifier);
  QTest::keyClicks(&message(), "far");
  bottomLine().end(false);
  QTest::keyClicks(&bottomLine(), "!");
  ok();
  EXPECT_EQ(inFile("message1"), "10\xC2\xA0km!\r\nfar");
  EXPECT_EQ(inFile("bottomline1"), "10\xC2\xA0km line!");
}

TEST_F(MessagesPageTest, ThousandsOfMessagesAreShown) {
  showMessages(std::vector<std::string>(5000, "again"));
  EXPECT_EQ(position(), "Message 1 of 5000");
  click(id::nextMessage);
  EXPECT_EQ(position(), "Message 2 of 5000");
  ok();
  EXPECT_EQ(inFile("messagesCount"), "5000");
}

}  // namespace
