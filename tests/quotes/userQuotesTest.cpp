// How the user's own quotes are found and read.
#include "quotes/quotesFixture.h"

namespace {

using Texts = std::vector<std::string>;

class UserQuotes : public Quotes {};

TEST_F(UserQuotes, AreReadFromTheFileInTheUsersFolder) {
  const std::string path = cQuotes::userQuotesFilePath();
  EXPECT_EQ(userFile(), path);
  EXPECT_EQ("userQuotes.txt", xplFileSystemMini::fileNameOf(path));
  EXPECT_EQ("Lunaria software", xplFileSystemMini::fileNameOf(xplFileSystemMini::folderOf(path)));
  EXPECT_EQ(xplFileSystemMini::getFolder_UserData(),
            xplFileSystemMini::folderOf(xplFileSystemMini::folderOf(path)));
}

TEST_F(UserQuotes, FolderAndFileAreMadeWhereTheyAreMissing) {
  const std::string path = cQuotes::userQuotesFilePath();
  EXPECT_TRUE(xplFileSystemMini::fileExists(path));
  EXPECT_EQ("", readFile(path));
  EXPECT_EQ(Texts{}, loadedUserQuotes());
}

TEST_F(UserQuotes, AFileThatIsThereStaysAsItIs) {
  writeFile(userFile(), "mine\n");
  cQuotes::userQuotesFilePath();
  EXPECT_EQ("mine\n", readFile(userFile()));
}

TEST_F(UserQuotes, AreTheLinesThatAreNotEmpty) {
  EXPECT_EQ((Texts{"first|part", "plain text"}), userQuotes("first|part\n\nplain text\n"));
}

TEST_F(UserQuotes, AreLoggedWithTheFile) {
  userQuotes("first|part\n\nplain text\n");
  EXPECT_EQ(1, countEntries("loading user quotes from file:" + userFile(), "Info"));
  EXPECT_EQ(1, countEntries("Adding user quote:first|part", "Info"));
  EXPECT_EQ(1, countEntries("Adding user quote:plain text", "Info"));
  EXPECT_EQ(0, countEntries("Adding user quote:"));
}

TEST_F(UserQuotes, TheLastLineNeedsNoEnd) {
  EXPECT_EQ((Texts{"a", "b"}), userQuotes("a\nb"));
}

TEST_F(UserQuotes, AreNotTrimmedAndKnowNoComments) {
  EXPECT_EQ((Texts{"  a ", " ", "# b", "\tc"}), userQuotes("  a \n \n# b\n\tc\n"));
}

TEST_F(UserQuotes, MayHaveTheLineEndsOfEitherPlatform) {
  EXPECT_EQ((Texts{"a", "b", "c"}), userQuotes("a\r\n\r\nb\nc\r\n"));
  EXPECT_EQ((Texts{"a\rb", "c\r"}), userQuotes("a\rb\r\nc\r\r\n"))
      << "only one before the line feed is dropped";
  EXPECT_EQ((Texts{"c\r"}), userQuotes("c\r")) << "no line feed follows";
}

TEST_F(UserQuotes, TakeTheBytesAsTheyAre) {
  EXPECT_EQ((Texts{"\xef\xbb\xbfmark"}), userQuotes("\xef\xbb\xbfmark\n"));
  EXPECT_EQ((Texts{"bad \xff\xc3( \xe2\x98"}), userQuotes("bad \xff\xc3( \xe2\x98\n"));
  EXPECT_EQ((Texts{"a\x1a"
                   "b",
                   "c"}),
            userQuotes("a\x1a"
                       "b\nc\n"));
}

TEST_F(UserQuotes, EndAtAZeroByte) {
  EXPECT_EQ((Texts{"a", ""}), userQuotes(std::string("a\0b\n\0\n", 6)));
}

TEST_F(UserQuotes, MayBeBarsAlone) {
  EXPECT_EQ((Texts{"|", "|||"}), userQuotes("|\n|||\n"));
}

TEST_F(UserQuotes, AreNoneInAnEmptyFile) {
  EXPECT_EQ(Texts{}, userQuotes(""));
  EXPECT_EQ(Texts{}, userQuotes("\n\r\n\n"));
}

TEST_F(UserQuotes, AreNoneWhereAFolderIsInTheFilesPlace) {
  xplFileSystemMini::createFolder(userFile());
  EXPECT_EQ(Texts{}, loadedUserQuotes());
  EXPECT_TRUE(xplFileSystemMini::folderExists(userFile()));
  EXPECT_EQ(1, countEntries("No file for user quotes could be made at:" + userFile(), "Warning"));
}

TEST_F(UserQuotes, AreNoneWhereAFileIsInTheFoldersPlace) {
  writeFile(xplFileSystemMini::joinPath(xplFileSystemMini::getFolder_UserData(), "Lunaria software"), "x");
  EXPECT_EQ(Texts{}, loadedUserQuotes());
}

TEST_F(UserQuotes, HaveNoLimitOfLength) {
  const std::string longLine(10'000'000, 'x');
  EXPECT_EQ((Texts{longLine, "next"}), userQuotes(longLine + "\nnext\n"));
}

TEST_F(UserQuotes, AreTakenAsLongAsChanceCanReachThem) {
  logInfo().setPath("");  // an entry for each would take its time
  std::string content;
  for (int i = 0; i < 32768; ++i) {
    content += stringFormat("quote %i\n\n", i);
  }
  EXPECT_EQ(32768U, userQuotes(content).size());
  EXPECT_EQ(0, countEntries("Only the first 32768 user quotes are taken", "Warning"));
  const Texts texts = userQuotes(content + "one too many\nand another\n");
  EXPECT_EQ(32768U, texts.size());
  EXPECT_EQ("quote 32767", texts.back());
  EXPECT_EQ(1, countEntries("Only the first 32768 user quotes are taken", "Warning"));
}

TEST_F(UserQuotes, KeepTheirTextsWhateverIsReadLater) {
  xplVectorAsDB<sQuote> list;
  writeFile(userFile(), "first\n");
  cQuotes::loadUserQuotes(list);
  const char* first = list[0].text;
  std::string many;
  for (int i = 0; i < 500; ++i) {
    many += "line " + std::to_string(i) + "\n";
  }
  EXPECT_EQ(500U, userQuotes(many).size());
  EXPECT_STREQ("first", first);
}

}  // namespace
