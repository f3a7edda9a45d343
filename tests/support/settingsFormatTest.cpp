// Tests the text form of the settings file.
#include <gtest/gtest.h>

#include "support/settingsFormat.h"

namespace {

using Values = std::map<std::string, std::string>;

Values parsed(const std::string& content) {
  Values values;
  parseSettings(content, values);
  return values;
}

}  // namespace

TEST(SettingsFormat, EscapesEachSpecialCharacter) {
  EXPECT_EQ(escapeSettingsValue("\\"), "\\\\");
  EXPECT_EQ(escapeSettingsValue("\t"), "\\t");
  EXPECT_EQ(escapeSettingsValue("\r"), "\\r");
  EXPECT_EQ(escapeSettingsValue("\n"), "\\n");
  EXPECT_EQ(escapeSettingsValue("="), "\\=");
  EXPECT_EQ(escapeSettingsValue("plain \x80\xff text"), "plain \x80\xff text");
}

TEST(SettingsFormat, EscapesAllOfAValue) {
  EXPECT_EQ(escapeSettingsValue("a=b\\c\td\r\n=="), "a\\=b\\\\c\\td\\r\\n\\=\\=");
}

TEST(SettingsFormat, ValuesSurviveEscapingAndUnescaping) {
  for (const std::string value : {"", "=", "\t\r\n", "a=b=c", "\\", "\\\\", "ends with \\", "\\=", "\\\\\\\\",
                                  "Your message\r\nhere", " blanks "}) {
    EXPECT_EQ(unescapeSettingsValue(escapeSettingsValue(value)), value) << value;
  }
}

TEST(SettingsFormat, KeptBackslashBeforeALetterComesBackAsAControlCharacter) {
  EXPECT_EQ(escapeSettingsValue("C:\\new"), "C:\\\\new");
  EXPECT_EQ(unescapeSettingsValue("C:\\\\new"), "C:\\\new");
  EXPECT_EQ(unescapeSettingsValue(escapeSettingsValue("\\n")), "\\\n");
  EXPECT_EQ(unescapeSettingsValue(escapeSettingsValue("\\r")), "\\\r");
  EXPECT_EQ(unescapeSettingsValue(escapeSettingsValue("\\t")), "\\\t");
  // Its neighbours come back whole.
  EXPECT_EQ(unescapeSettingsValue(escapeSettingsValue("\\a")), "\\a");
  EXPECT_EQ(unescapeSettingsValue(escapeSettingsValue("n\\")), "n\\");
  EXPECT_EQ(unescapeSettingsValue(escapeSettingsValue("\\N")), "\\N");
}

TEST(SettingsFormat, BackslashBeforeAnyOtherCharacterStays) {
  EXPECT_EQ(unescapeSettingsValue("\\a\\ \\"), "\\a\\ \\");
}

TEST(SettingsFormat, ReadsOneEntryALine) {
  EXPECT_EQ(parsed("a=1\nb=two words\n"), (Values{{"a", "1"}, {"b", "two words"}}));
}

TEST(SettingsFormat, EmptyFileHoldsNothing) {
  EXPECT_EQ(parsed(""), Values());
}

TEST(SettingsFormat, LastLineNeedsNoLineEnd) {
  EXPECT_EQ(parsed("a=1\nb=2"), (Values{{"a", "1"}, {"b", "2"}}));
  EXPECT_EQ(parsed("a=1\nb="), (Values{{"a", "1"}, {"b", ""}}));
}

TEST(SettingsFormat, LineEndsOfWindowsReadAlike) {
  EXPECT_EQ(parsed("a=1\r\nb=2\r\n"), (Values{{"a", "1"}, {"b", "2"}}));
  EXPECT_EQ(parsed("junk\r\nk=v\r\n"), (Values{{"junk\nk", "v"}}));
}

TEST(SettingsFormat, LaterLineOverridesAnEarlierOne) {
  EXPECT_EQ(parsed("a=1\na=2\n"), (Values{{"a", "2"}}));
}

TEST(SettingsFormat, LineWithoutEqualsBecomesTheFrontOfTheNextKey) {
  EXPECT_EQ(parsed("junk\nk=v\n"), (Values{{"junk\nk", "v"}}));
  EXPECT_EQ(parsed("a=1\n\nk=v\n"), (Values{{"a", "1"}, {"\nk", "v"}}));
}

TEST(SettingsFormat, TextAfterTheLastEntryBecomesAKeyWithoutValue) {
  EXPECT_EQ(parsed("a=1\ntail"), (Values{{"a", "1"}, {"tail", ""}}));
  EXPECT_EQ(parsed("only junk\n"), (Values{{"only junk\n", ""}}));
}

TEST(SettingsFormat, NothingIsTrimmed) {
  EXPECT_EQ(parsed(" a = 1 \n\tb=\t2\n"), (Values{{" a ", " 1 "}, {"\tb", "\t2"}}));
}

TEST(SettingsFormat, ValueMayHoldEqualsSigns) {
  EXPECT_EQ(parsed("a=b=c\nd=e\\=f\n"), (Values{{"a", "b=c"}, {"d", "e=f"}}));
}

TEST(SettingsFormat, KeyMayBeEmpty) {
  EXPECT_EQ(parsed("=v\n"), (Values{{"", "v"}}));
}

TEST(SettingsFormat, BinaryBytesAreReadAsTheyAre) {
  const std::string content("\0\x01\xff=\x80\0\n\xfe", 8);
  EXPECT_EQ(parsed(content),
            (Values{{std::string("\0\x01\xff", 3), std::string("\x80\0", 2)}, {"\xfe", ""}}));
}

TEST(SettingsFormat, ALineOfTenMegabytesIsRead) {
  const std::string value(10 << 20, 'x');
  const Values values = parsed("a=" + value + "\nb=2\n");
  EXPECT_EQ(values.size(), 2U);
  EXPECT_TRUE(values.at("a") == value);
  EXPECT_EQ(values.at("b"), "2");
}

TEST(SettingsFormat, ManyLinesAreReadInReasonableTime) {
  std::string content;
  for (int i = 0; i < 200000; ++i) {
    content += "key" + std::to_string(i) + "=\\n\n";
  }
  EXPECT_EQ(parsed(content).size(), 200000U);
}

TEST(SettingsFormat, ParsingAddsToWhatIsThere) {
  Values values{{"a", "0"}, {"c", "3"}};
  parseSettings("a=1\n", values);
  EXPECT_EQ(values, (Values{{"a", "1"}, {"c", "3"}}));
}

TEST(SettingsFormat, WritesLinesInByteOrderOfTheKeys) {
  EXPECT_EQ(formatSettings({{"b", "2"}, {"B", "1"}, {"a", "3"}, {"\xc3\xa4", "4"}, {"_", "5"}}, "\n"),
            "B=1\n_=5\na=3\nb=2\n\xc3\xa4=4\n");
}

TEST(SettingsFormat, WritesValuesEscapedAndKeysAsTheyStand) {
  EXPECT_EQ(formatSettings({{"a\\b", "=\n"}}, "\r\n"), "a\\b=\\=\\n\r\n");
}

TEST(SettingsFormat, WritesNothingForNoEntries) {
  EXPECT_EQ(formatSettings({}, "\n"), "");
}
