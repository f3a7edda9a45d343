// Tests how the settings store writes and reads values that are truth values and numbers.
#include <cstdint>
#include <limits>

#include "support/settingsFixture.h"

TEST_F(Settings, TypedValuesAreStoredAsTheirText) {
  xplSettings store(xplSettings::scopeUser);
  store.set("text", "literal");
  EXPECT_EQ(store.get("text"), "literal");
  store.set("true", true);
  EXPECT_EQ(store.get("true"), "yes");
  store.set("false", false);
  EXPECT_EQ(store.get("false"), "no");
  store.set("int", -2147483647 - 1);
  EXPECT_EQ(store.get("int"), "-2147483648");
  store.set("big", std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(store.get("big"), "9223372036854775807");
  store.set("double", 1234567.0);
  EXPECT_EQ(store.get("double"), "1.23457e+06");
  store.set("double", 0.1);
  EXPECT_EQ(store.get("double"), "0.1");
  store.set("double", -1234.5);
  EXPECT_EQ(store.get("double"), "-1234.5");
}

TEST_F(Settings, BooleanWordsAreReadExactly) {
  xplSettings store(xplSettings::scopeUser);
  for (const char* word : {"yes", "true", "1", "on"}) {
    store.set("key", word);
    EXPECT_TRUE(store.getBool("key", false)) << word;
  }
  for (const char* word : {"no", "false", "0", "off"}) {
    store.set("key", word);
    EXPECT_FALSE(store.getBool("key", true)) << word;
  }
  for (const char* word : {"Yes", "YES", "True", "On", "No", "False", "Off", " yes", "yes ", "2", "", "y"}) {
    store.set("key", word);
    EXPECT_TRUE(store.getBool("key", true)) << word;
    EXPECT_FALSE(store.getBool("key", false)) << word;
  }
  EXPECT_TRUE(store.getBool("absent", true));
  EXPECT_FALSE(store.getBool("absent", false));
}

TEST_F(Settings, NumbersAreReadFromWholeTextsInRange) {
  xplSettings store(xplSettings::scopeUser);
  const auto readInt = [&store](const char* text) {
    store.set("key", text);
    return store.getInt("key", 77);
  };
  EXPECT_EQ(readInt("0"), 0);
  EXPECT_EQ(readInt("-5"), -5);
  EXPECT_EQ(readInt("2147483647"), 2147483647);
  EXPECT_EQ(readInt("-2147483648"), -2147483647 - 1);
  for (const char* text : {"2147483648", "-2147483649", "99999999999999999999", "", " 1", "1 ", "+1", "1.0",
                           "1e3", "0x10", "abc", "1a", "-", "--1"}) {
    EXPECT_EQ(readInt(text), 77) << text;
  }
  EXPECT_EQ(store.getInt("absent", 77), 77);
}

TEST_F(Settings, LongNumbersAreReadFromWholeTextsInRange) {
  xplSettings store(xplSettings::scopeUser);
  const auto readInt64 = [&store](const char* text) {
    store.set("key", text);
    return store.getInt64("key", 77);
  };
  EXPECT_EQ(readInt64("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(readInt64("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
  for (const char* text : {"9223372036854775808", "", "1 ", "x"}) {
    EXPECT_EQ(readInt64(text), 77) << text;
  }
  EXPECT_EQ(store.getInt64("absent", 77), 77);
}
