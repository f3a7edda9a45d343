// Tests the list of messages: its first two, loading, saving, and damaged counts.
#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/settingsGroups.h"

namespace {

class MessageSettings : public PrivateFolders {
 protected:
  static std::vector<std::pair<std::string, std::string>> entriesOf(const cMessageSettings& messages) {
    std::vector<std::pair<std::string, std::string>> entries;
    for (std::size_t i = 0; i < messages.count(); ++i) {
      entries.emplace_back(messages.get(i)->message, messages.get(i)->bottomLine);
    }
    return entries;
  }
};

}  // namespace

TEST_F(MessageSettings, FreshInstallationGetsTwoMessagesWhichAreSaved) {
  cMessageSettings messages;
  messages.load();
  ASSERT_EQ(messages.count(), 2U);
  EXPECT_EQ(messages.get(0)->message, "Your message\r\nhere");
  EXPECT_EQ(messages.get(0)->bottomLine, "and your bottom line here");
  EXPECT_EQ(messages.get(1)->message, "Lunaria\r\nscreensaver");
  EXPECT_NE(messages.get(1)->bottomLine.find(".example"), std::string::npos);
  EXPECT_EQ(messages.currentIndex, 0U);

  xplCloseSettings();
  EXPECT_EQ(xplUserSettings().get("msg_defaultMessagesAdded"), "1");
  EXPECT_EQ(xplUserSettings().get("messagesCount"), "2");
  EXPECT_EQ(xplUserSettings().get("message1"), "Your message\r\nhere");
  EXPECT_EQ(xplUserSettings().get("bottomline1"), "and your bottom line here");
  EXPECT_EQ(xplUserSettings().get("message2"), "Lunaria\r\nscreensaver");
  EXPECT_EQ(xplUserSettings().get("bottomline2"), messages.get(1)->bottomLine);
  EXPECT_FALSE(xplUserSettings().get("message0").has_value());
  EXPECT_FALSE(xplUserSettings().get("message3").has_value());
}

TEST_F(MessageSettings, LoadingAgainGivesTheSame) {
  cMessageSettings first;
  first.load();
  xplCloseSettings();
  cMessageSettings second;
  second.load();
  EXPECT_EQ(entriesOf(second), entriesOf(first));
  second.load();
  EXPECT_EQ(second.count(), 2U);
}

TEST_F(MessageSettings, EmptyListStaysEmptyOnceTheFirstMessagesWereAdded) {
  xplUserSettings().set("messagesCount", 0);
  xplUserSettings().set("msg_defaultMessagesAdded", true);
  cMessageSettings messages;
  messages.load();
  EXPECT_EQ(messages.count(), 0U);
  EXPECT_EQ(messages.get(0), nullptr);
}

TEST_F(MessageSettings, ListOfTheUserGetsNoFirstMessages) {
  xplUserSettings().set("messagesCount", 1);
  xplUserSettings().set("message1", "mine");
  cMessageSettings messages;
  messages.load();
  ASSERT_EQ(messages.count(), 1U);
  EXPECT_EQ(messages.get(0)->message, "mine");
  EXPECT_EQ(messages.get(0)->bottomLine, "");
  EXPECT_FALSE(xplUserSettings().get("msg_defaultMessagesAdded").has_value());
}

TEST_F(MessageSettings, CountBeyondTheStoredEntriesGivesEmptyMessages) {
  xplUserSettings().set("messagesCount", 3);
  xplUserSettings().set("message2", "second");
  xplUserSettings().set("bottomline3", "third line");
  cMessageSettings messages;
  messages.load();
  EXPECT_EQ(entriesOf(messages),
            (std::vector<std::pair<std::string, std::string>>{{"", ""}, {"second", ""}, {"", "third line"}}));
}

TEST_F(MessageSettings, SavingWritesTheCountAndEachEntryCountedFromOne) {
  cMessageSettings messages;
  messages.add({"a\r\nb", "c=d"});
  messages.add({"", "e"});
  messages.save();
  std::string text = readFile(xplUserSettings().filename());
  std::erase(text, '\r');
  EXPECT_EQ(text, "bottomline1=c\\=d\nbottomline2=e\nmessage1=a\\r\\nb\nmessage2=\nmessagesCount=2\n");
}

TEST_F(MessageSettings, LoadingEmptiesTheListAndReturnsToTheFirst) {
  cMessageSettings messages;
  messages.load();
  messages.add({"unsaved", ""});
  messages.currentIndex = 2;
  messages.load();
  EXPECT_EQ(messages.count(), 2U);
  EXPECT_EQ(messages.currentIndex, 0U);
}

TEST_F(MessageSettings, IndexOutOfRangeGivesNothing) {
  cMessageSettings messages;
  messages.add({"only", ""});
  EXPECT_NE(messages.get(0), nullptr);
  EXPECT_EQ(messages.get(1), nullptr);
  EXPECT_EQ(messages.get(static_cast<std::size_t>(-1)), nullptr);
}

TEST_F(MessageSettings, CountThatIsNoNumberIsZero) {
  xplUserSettings().set("msg_defaultMessagesAdded", true);
  for (const char* count : {"many", "", "-1", "-2147483648", "99999999999", "2 "}) {
    xplUserSettings().set("messagesCount", count);
    cMessageSettings messages;
    messages.load();
    EXPECT_EQ(messages.count(), 0U) << count;
  }
  EXPECT_TRUE(logWarning().isEmpty());
}

TEST_F(MessageSettings, DamagedCountIsCutWithAWarning) {
  xplUserSettings().set("messagesCount", 2147483647);
  xplUserSettings().set("message100000", "last");
  cMessageSettings messages;
  messages.load();
  ASSERT_EQ(messages.count(), 100000U);
  EXPECT_EQ(messages.get(99999)->message, "last");
  EXPECT_FALSE(logWarning().isEmpty());
}

TEST_F(MessageSettings, LargestCountIsReadWithoutAWarning) {
  xplUserSettings().set("messagesCount", 100000);
  cMessageSettings messages;
  messages.load();
  EXPECT_EQ(messages.count(), 100000U);
  EXPECT_TRUE(logWarning().isEmpty());
}

TEST_F(MessageSettings, SaveThatFailsIsReportedOnce) {
  ASSERT_TRUE(xplFileSystemMini::createFolder(xplUserSettings().filename()));
  cMessageSettings messages;
  messages.load();
  EXPECT_EQ(messages.count(), 2U);
  EXPECT_EQ(countEntries("Error #1352c: saving xplSettings to file:" + xplUserSettings().filename(), "ERROR"),
            1);
}

TEST_F(MessageSettings, EntriesAreInsertedReplacedAndRemoved) {
  cMessageSettings messages;
  messages.insert(0, {"b", "2"});
  messages.insert(0, {"a", "1"});
  messages.insert(2, {"c", "3"});
  messages.replace(1, {"B", "II"});
  messages.remove(0);
  EXPECT_EQ(entriesOf(messages), (std::vector<std::pair<std::string, std::string>>{{"B", "II"}, {"c", "3"}}));
}

TEST_F(MessageSettings, AnIndexOutOfRangeChangesNothing) {
  cMessageSettings messages;
  messages.add({"a", "1"});
  messages.insert(2, {"x", ""});
  messages.replace(1, {"x", ""});
  messages.remove(1);
  EXPECT_EQ(entriesOf(messages), (std::vector<std::pair<std::string, std::string>>{{"a", "1"}}));
}
