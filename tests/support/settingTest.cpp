// Tests the single setting of each type.
#include "harness/privateFolders.h"
#include "support/setting.h"

using SettingOfType = PrivateFolders;

TEST_F(SettingOfType, ReadsItsDefaultWhereTheKeyIsAbsent) {
  xplSettings& store = xplUserSettings();
  EXPECT_TRUE(xplSetting<bool>(store, "key", true).read());
  EXPECT_FALSE(xplSetting<bool>(store, "key", false).read());
  EXPECT_EQ(xplSetting<int>(store, "key", -3).read(), -3);
  EXPECT_EQ(xplSetting<std::int64_t>(store, "key", std::int64_t{1} << 40).read(), std::int64_t{1} << 40);
  EXPECT_EQ(xplSetting<std::string>(store, "key", "text").read(), "text");
}

TEST_F(SettingOfType, ReadsItsDefaultWhereTheTextDoesNotParse) {
  xplSettings& store = xplUserSettings();
  store.set("key", "Yes");
  EXPECT_TRUE(xplSetting<bool>(store, "key", true).read());
  EXPECT_FALSE(xplSetting<bool>(store, "key", false).read());
  EXPECT_EQ(xplSetting<int>(store, "key", 9).read(), 9);
  EXPECT_EQ(xplSetting<std::int64_t>(store, "key", 9).read(), 9);
  EXPECT_EQ(xplSetting<std::string>(store, "key", "text").read(), "Yes");
}

TEST_F(SettingOfType, ReadsWhatWasWritten) {
  xplSettings& store = xplUserSettings();
  xplSetting<bool> flag(store, "flag", false);
  flag.write(true);
  EXPECT_TRUE(flag.read());
  EXPECT_EQ(store.get("flag"), "yes");
  xplSetting<int> number(store, "number", 0);
  number.write(-12);
  EXPECT_EQ(number.read(), -12);
  xplSetting<std::int64_t> big(store, "big", 0);
  big.write(std::int64_t{1} << 62);
  EXPECT_EQ(big.read(), std::int64_t{1} << 62);
  xplSetting<std::string> text(store, "text", "default");
  text.write("");
  EXPECT_EQ(text.read(), "");
  EXPECT_EQ(text.key(), "text");
}

TEST_F(SettingOfType, CachesNothing) {
  xplSettings& store = xplUserSettings();
  const xplSetting<int> number(store, "number", 0);
  EXPECT_EQ(number.read(), 0);
  store.set("number", 5);
  EXPECT_EQ(number.read(), 5);
}
