// Tests of the UTF-8 decoder.
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "graphics/linux/utf8.h"

namespace {

std::u32string decodeUtf8(std::string_view text) {
  std::u32string characters;
  forEachCharacter(text, [&characters](char32_t character) { characters += character; });
  return characters;
}

std::u32string replacements(std::size_t count) {
  return std::u32string(count, replacementCharacter);
}

TEST(Utf8, DecodesSequencesOfEveryLength) {
  EXPECT_EQ(decodeUtf8("a\xc3\xa9\xe2\x98\xbe\xf0\x9f\x8c\x99z"), U"a\u00e9\u263e\U0001f319z");
}

TEST(Utf8, DecodesTheFirstAndLastOfEveryLength) {
  EXPECT_EQ(decodeUtf8(std::string("\0", 1)), std::u32string(1, U'\0'));
  EXPECT_EQ(decodeUtf8("\x7f\xc2\x80\xdf\xbf"), (std::u32string{0x7f, 0x80, 0x7ff}));
  EXPECT_EQ(decodeUtf8("\xe0\xa0\x80\xef\xbf\xbf"), (std::u32string{0x800, 0xffff}));
  EXPECT_EQ(decodeUtf8("\xf0\x90\x80\x80\xf4\x8f\xbf\xbf"), (std::u32string{0x10000, 0x10ffff}));
  EXPECT_EQ(decodeUtf8("\xed\x9f\xbf\xee\x80\x80"), (std::u32string{0xd7ff, 0xe000}));
}

TEST(Utf8, AnEmptyTextHasNoCharacters) {
  EXPECT_EQ(decodeUtf8(""), U"");
}

TEST(Utf8, EveryMalformedByteIsReplacedAndTheRestDecoded) {
  EXPECT_EQ(decodeUtf8("a\xffz"), U"a\ufffdz");
  EXPECT_EQ(decodeUtf8("\x80\xbf"), replacements(2));
  EXPECT_EQ(decodeUtf8("\xc3("), U"\ufffd(");
  EXPECT_EQ(decodeUtf8("\xe2\x98z"), U"\ufffd\ufffdz");
}

TEST(Utf8, ASequenceCutByTheEndIsReplaced) {
  EXPECT_EQ(decodeUtf8("a\xc3"), U"a\ufffd");
  EXPECT_EQ(decodeUtf8("\xf0\x9f\x8c"), replacements(3));
}

TEST(Utf8, OverlongFormsAreMalformed) {
  EXPECT_EQ(decodeUtf8("\xc0\x80"), replacements(2));
  EXPECT_EQ(decodeUtf8("\xc1\xbf"), replacements(2));
  EXPECT_EQ(decodeUtf8("\xe0\x9f\xbf"), replacements(3));
  EXPECT_EQ(decodeUtf8("\xf0\x8f\xbf\xbf"), replacements(4));
}

TEST(Utf8, SurrogatesAndValuesBeyondTheLastAreMalformed) {
  EXPECT_EQ(decodeUtf8("\xed\xa0\x80"), replacements(3));
  EXPECT_EQ(decodeUtf8("\xed\xbf\xbf"), replacements(3));
  EXPECT_EQ(decodeUtf8("\xf4\x90\x80\x80"), replacements(4));
  EXPECT_EQ(decodeUtf8("\xf8\x88\x80\x80\x80"), replacements(5));
}

}  // namespace
