// Tests the Messages page under the hands of a user.
#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/sheet/messageText.h"
#include "host/sheet/windows/sheetDriver.h"

namespace {

namespace id = controlIds;

class MessagesPage : public PrivateFolders {
 protected:
  // Opens the sheet on the page with a list of these messages.
  static void show(const std::vector<std::string>& messages,
                   const std::function<void(SheetDriver&)>& script) {
    xplUserSettings().set("msg_defaultMessagesAdded", "1");
    cMessageSettings list;
    for (const auto& message : messages) {
      list.add({message, message + " line"});
    }
    list.save();
    cAppSettings().activeDialogTab.write(messagesPage);
    SettingsSheet sheet;
    SheetDriver::run(sheet, script);
  }
  static std::string stored(const std::string& key) {
    return xplSettings(xplSettings::scopeUser).get(key).value_or("(none)");
  }
};

TEST_F(MessagesPage, AnEmptyListDisablesEverythingButNew) {
  show({}, [](SheetDriver& driver) {
    for (const int control :
         {id::message, id::bottomLine, id::deleteMessage, id::previousMessage, id::nextMessage}) {
      EXPECT_FALSE(driver.isEnabled(control)) << control;
    }
    EXPECT_TRUE(driver.isEnabled(id::newMessage));
    EXPECT_EQ(driver.text(id::messagePosition), "Message 0 of 0");
    driver.ok();
  });
  EXPECT_EQ(stored("messagesCount"), "0");
}

TEST_F(MessagesPage, TurnsFromMessageToMessage) {
  show({"one", "two", "three"}, [](SheetDriver& driver) {
    EXPECT_EQ(driver.text(id::message), "one");
    EXPECT_EQ(driver.text(id::bottomLine), "one line");
    EXPECT_FALSE(driver.isEnabled(id::previousMessage));
    driver.click(id::nextMessage);
    EXPECT_EQ(driver.text(id::message), "two");
    EXPECT_EQ(driver.text(id::messagePosition), "Message 2 of 3");
    EXPECT_TRUE(driver.isEnabled(id::previousMessage));
    driver.click(id::nextMessage);
    EXPECT_FALSE(driver.isEnabled(id::nextMessage));
    driver.click(id::previousMessage);
    EXPECT_EQ(driver.text(id::message), "two");
    driver.cancel();
  });
}

TEST_F(MessagesPage, WhatIsTypedIsStored) {
  show({"one", "two"}, [](SheetDriver& driver) {
    driver.setText(id::message, "");
    driver.type(id::message, "first\nsecond");  // the line feed is what CTRL + ENTER types
    driver.click(id::newMessage);
    EXPECT_EQ(driver.text(id::message), "");
    driver.type(id::message, "new");
    driver.type(id::bottomLine, "below");
    driver.ok();
  });
  EXPECT_EQ(stored("messagesCount"), "3");
  EXPECT_EQ(stored("message1"), "first\r\nsecond");
  EXPECT_EQ(stored("message2"), "new");
  EXPECT_EQ(stored("bottomline2"), "below");
  EXPECT_EQ(stored("message3"), "two");
}

TEST_F(MessagesPage, CancelForgetsWhatWasTyped) {
  show({"one"}, [](SheetDriver& driver) {
    driver.setText(id::message, "other");
    driver.click(id::newMessage);
    driver.cancel();
  });
  EXPECT_EQ(stored("message1"), "one");
  EXPECT_EQ(stored("messagesCount"), "1");
}

TEST_F(MessagesPage, DeleteOfAllLeavesAnEmptyListAndAKeyboardThatWorks) {
  show({"one", "two"}, [](SheetDriver& driver) {
    SetFocus(driver.control(id::deleteMessage));
    driver.click(id::deleteMessage);
    EXPECT_EQ(driver.text(id::message), "two");
    driver.click(id::deleteMessage);
    EXPECT_FALSE(driver.isEnabled(id::deleteMessage));
    EXPECT_EQ(GetFocus(), driver.control(id::newMessage));
    driver.ok();
  });
  EXPECT_EQ(stored("messagesCount"), "0");
}

TEST_F(MessagesPage, NoMoreIsTypedThanIsKept) {
  std::string text;
  while (text.size() + 5 <= maxMessageCharacters) {
    text += "abc\r\n";
  }
  text.resize(maxMessageCharacters, 'x');
  show({"one"}, [&](SheetDriver& driver) {
    driver.setText(id::message, text);
    driver.type(id::message, "y");
    EXPECT_EQ(driver.text(id::message), text);
    driver.setText(id::bottomLine, std::string(maxMessageCharacters, 'b'));
    driver.ok();
  });
  EXPECT_EQ(stored("message1"), text);
  EXPECT_EQ(stored("bottomline1"), std::string(maxMessageCharacters, 'b'));
}

TEST_F(MessagesPage, PastedControlCharactersAreNotStored) {
  show({"one"}, [](SheetDriver& driver) {
    SendMessageA(driver.control(id::message), EM_SETSEL, 0, -1);
    SendMessageA(driver.control(id::message), EM_REPLACESEL, TRUE,
                 reinterpret_cast<LPARAM>("a\x01\x1b"
                                          "b\tc\r\nd=\\e"));
    driver.ok();
  });
  EXPECT_EQ(stored("message1"), "ab c\r\nd=\\e");
}

// What a text written by hand may hold and no edit keeps: Latin-1, a no-break space, separators, a tab.
const std::vector<std::string> writtenByHand = {"caf\xE9 \tend",
                                                "no\xC2\xA0"
                                                "break\tx",
                                                "a\xE2\x80\xA8"
                                                "b",
                                                "\xEF\xBB\xBFmark\nline"};

TEST_F(MessagesPage, WhatIsOnlyLookedAtStaysByteForByte) {
  show(writtenByHand, [](SheetDriver& driver) {
    for (std::size_t i = 1; i < writtenByHand.size(); ++i) {
      driver.click(id::nextMessage);
    }
    driver.click(id::previousMessage);
    driver.ok();
  });
  for (std::size_t i = 0; i < writtenByHand.size(); ++i) {
    EXPECT_EQ(stored("message" + std::to_string(i + 1)), writtenByHand[i]);
    EXPECT_EQ(stored("bottomline" + std::to_string(i + 1)), writtenByHand[i] + " line");
  }
}

TEST_F(MessagesPage, EscapeInTheMessageCancelsTheSheet) {
  show({"one"}, [](SheetDriver& driver) {
    driver.setText(id::message, "other");
    SetFocus(driver.control(id::message));
    PostMessageA(driver.control(id::message), WM_KEYDOWN, VK_ESCAPE, 0);
  });
  EXPECT_EQ(stored("message1"), "one");
}

TEST_F(MessagesPage, ThousandsOfMessagesAreShown) {
  show(std::vector<std::string>(5000, "again"), [](SheetDriver& driver) {
    EXPECT_EQ(driver.text(id::messagePosition), "Message 1 of 5000");
    driver.click(id::nextMessage);
    EXPECT_EQ(driver.text(id::messagePosition), "Message 2 of 5000");
    driver.ok();
  });
  EXPECT_EQ(stored("messagesCount"), "5000");
}

}  // namespace
