// Tests how Lunaria is put into XScreenSaver's preferences and taken out again.
#include "host/linux/xscreensaverChoiceFixture.h"

using namespace xscreensaver;

namespace {

TEST(XscreensaverChoice, TheEntryFollowsThoseThatAreThereInTheirForm) {
  EXPECT_EQ(chosenIn(written).text,
            "# XScreenSaver Preferences File\n# Written by "
            "somebody.\n\ntimeout:\t0:10:00\nmode:\t\tone\nselected:\t2\n\n"
            "programs:\t\t\t\t\t\t\t\t      \\\n\t\t\t\tmaze --root\t\t\t\t    \\n\\\n- GL: \t\t\t\tcubes "
            "--root\t\t\t    "
            "\\n\\\n\t\t\t\tlunaria --root\t\t\t\t    \\n\\\n\n\npointerHysteresis:  10\n");
  expectRoundTrip(written);
}

TEST(XscreensaverChoice, AFileWithoutAListGetsOneOfItsOwn) {
  EXPECT_EQ(chosenIn("timeout: 1\n").text,
            "mode:\tone\nselected:\t0\nprograms:\t\t\t\tlunaria --root\t\t\t\t    \\n\ntimeout: 1\n");
}

TEST(XscreensaverChoice, EveryFormComesBackToTheByte) {
  for (const char* text : {"",
                           "\n",
                           "timeout: 1",
                           "timeout: 1\n",
                           "mode: one\nselected: 3\n",
                           "mode:\nselected:\n",
                           "MODE: Blank  \nSelected:x",
                           "programs:",
                           "programs:\n",
                           "programs: \n",
                           "programs: \\\n",
                           "programs: \\\n\n",
                           "programs: \\\n\t\n",
                           "programs:\\",
                           "programs: \\t",
                           "programs: \\n",
                           "programs: \\n \\n\n",
                           "programs: a",
                           "programs: a  \n",
                           "programs: a \\n",
                           "programs: a \\n\n",
                           "programs: a \\n\\",
                           "programs: a \\n\\\n",
                           "programs: a \\n\\\n\n",
                           "programs: a \\n \\\n\n",
                           "programs: a \\n b \\n c\nmode: one\n",
                           "programs: a\\",
                           "programs: a \\\\\n\n",
                           "programs: a \\n\\\nmode: one\n",
                           "programs: a\nprograms: b \\n\n",
                           "mode: one\nmode: blank\nselected: 0\nselected: 1\n",
                           "mode: \\\n one\n",
                           "# programs: x \\\nmode: one\n",
                           "mode: one\\\n",
                           "selected: 1\\\n2\\\n\n",
                           "programs: a --root -x lunaria \\n"}) {
    expectRoundTrip(text);
  }
}

TEST(XscreensaverChoice, WindowsLineEndsComeBackToo) {
  for (const char* text : {"timeout: 1\r\n", "mode: blank\r\nselected: 1\r\n", "programs: a\r\nmode: one\r\n",
                           "programs: a \\n\r\n", "programs: a \\n b\r\n", "programs:\r\n"}) {
    expectRoundTrip(text);
  }
  EXPECT_EQ(chosenIn("timeout: 1\r\n").text,
            "mode:\tone\r\nselected:\t0\r\nprograms:\t\t\t\tlunaria --root\t\t\t\t    \\n\r\ntimeout: 1\r\n");
}

TEST(XscreensaverChoice, AListThatXScreenSaverCannotReadIsKnown) {
  EXPECT_TRUE(isListBroken("programs:\\\r\n a \\n\\\r\n\r\n"));
  EXPECT_TRUE(isListBroken("mode: one\r\nprograms: a \\n\\\r\n"));
  EXPECT_FALSE(isListBroken("programs: a \\n\r\n"));
  EXPECT_FALSE(isListBroken("programs: a \\n\\\n\n"));
  EXPECT_FALSE(isListBroken("timeout: \\\r\n"));
  EXPECT_FALSE(isListBroken(""));
}

TEST(XscreensaverChoice, BytesThatAreNoUtf8StayAsTheyAre) {
  expectRoundTrip("textLiteral: \xff\xfe\x80\nprograms: \"\xe4\" a --root \\n\\\n\n");
}

TEST(XscreensaverChoice, ALongListKeepsItsOrder) {
  std::string text = "programs: \\\n";
  for (int i = 0; i < 5000; ++i) {
    text += "\t\tsaver" + std::to_string(i) + " --root \\n\\\n";
  }
  text += "\nmode: random\n";
  expectRoundTrip(text);
  EXPECT_EQ(valueOf(chosenIn(text).text, "selected"), "5000");
}

TEST(XscreensaverChoice, ChoosingAgainChangesNothing) {
  for (const std::string& text : {written, std::string(), std::string("programs: a")}) {
    const std::string once = chosenIn(text).text;
    EXPECT_EQ(chosenIn(once).text, once);
  }
}

TEST(XscreensaverChoice, AnEntryThatTheUserWroteIsChosenAsItIs) {
  for (const char* entry : {"lunaria -root --fast", "- lunaria --root",
                            " GL: \"My moon\" /usr/bin/lunaria --root", "-lunaria\t--root"}) {
    const std::string list = std::string("programs: a --root \\n ") + entry + " \\n b --root\n";
    const std::string text = chosenIn(list).text;
    EXPECT_EQ(text, "mode:\tone\nselected:\t1\n" + list) << entry;
    EXPECT_EQ(takeOut(text, chosenIn(list).before), "programs: a --root \\n b --root\n") << entry;
  }
}

TEST(XscreensaverChoice, AnEntryOverTwoLinesIsOne) {
  // So the settings program writes a long command.
  const std::string list =
      "programs:\\\n\ta --root\t\\n\\\n-\t/a/long/path/lunaria\t      \\\n\t\t  --root\t\\n\\\n\tb "
      "--root\t\\n\\\n\n";
  const std::string chosen = "mode: one\nselected: 1\n" + list;
  EXPECT_EQ(chosenIn(chosen).text, chosen);
  EXPECT_EQ(takeOut(chosen, ChoiceBefore{"blank", "0"}),
            "mode: blank\nselected: 0\nprograms:\\\n\ta --root\t\\n\\\n\tb --root\t\\n\\\n\n");
}

TEST(XscreensaverChoice, AnEntryThatCannotServeIsPassedOver) {
  for (const char* entry :
       {"lunaria", "lunaria --rooted", "sh -c 'lunaria --root'", "lunaria.sh --root", "# lunaria --root"}) {
    const std::string text = chosenIn(std::string("programs: ") + entry).text;
    EXPECT_EQ(valueOf(text, "selected"), "1") << entry;
    EXPECT_EQ(startedBy(text), command) << entry;
  }
}

TEST(XscreensaverChoice, AnEntryWhoseProgramIsGoneIsPassedOverAndTakenOutLater) {
  const std::string list = "programs: /gone/lunaria --root \\n a --root\n";
  const Chosen chosen =
      choose(list, command, [](const std::string& program) { return program != "/gone/lunaria"; });
  EXPECT_EQ(valueOf(chosen.text, "selected"), "2");
  EXPECT_EQ(takeOut(chosen.text, chosen.before), "programs: a --root\n");
}

TEST(XscreensaverChoice, AnotherSaverThatWasChosenSinceStaysChosen) {
  // The settings program has written its own entries behind ours.
  const std::string list = "programs: a \\n\\\n lunaria --root \\n\\\n b \\n\\\n c \\n\\\n\n";
  const auto out = [&](const std::string& choice) {
    return takeOut(choice + list, ChoiceBefore{"blank", "7"});
  };
  const std::string rest = "programs: a \\n\\\n b \\n\\\n c \\n\\\n\n";
  EXPECT_EQ(out("mode: one\nselected: 0\n"), "mode: one\nselected: 0\n" + rest);
  EXPECT_EQ(out("mode: one\nselected: 2\n"), "mode: one\nselected: 1\n" + rest);
  EXPECT_EQ(out("mode: random\nselected: 3\n"), "mode: random\nselected: 2\n" + rest);
  EXPECT_EQ(out("mode: random\nselected: -1\n"), "mode: random\nselected: -1\n" + rest);
  EXPECT_EQ(out("mode: off\nselected: 1\n"), "mode: off\nselected: 7\n" + rest);
  EXPECT_EQ(out("mode: one\nselected: 1\n"), "mode: blank\nselected: 7\n" + rest);
}

TEST(XscreensaverChoice, WhatWasChosenBeforeCountsWithoutOurEntry) {
  const std::string list = "programs: a \\n lunaria --root \\n b\n";
  EXPECT_EQ(chosenIn("mode: one\nselected: 2\n" + list).before.selected, "1");
  EXPECT_EQ(chosenIn("mode: one\nselected: 0\n" + list).before.selected, "0");
  EXPECT_EQ(chosenIn("mode: random\nselected: 1\n" + list).before.selected, "-1");
  EXPECT_EQ(chosenIn("mode: one\nselected: 2\n" + list).before.mode, "one");
}

TEST(XscreensaverChoice, WithoutAMemoryTheChoiceBecomesARandomSaver) {
  EXPECT_EQ(takeOut("mode: one\nselected: 1\nprograms: a \\n lunaria --root\n", std::nullopt),
            "mode: random\nselected: -1\nprograms: a\n");
}

TEST(XscreensaverChoice, WhatTheUserChangedSinceIsKept) {
  const Chosen chosen = chosenIn(written);
  std::string edited = chosen.text;
  edited.replace(edited.find("0:10:00"), 7, "0:03:00");
  edited += "lock: True";
  std::string expected = written;
  expected.replace(expected.find("0:10:00"), 7, "0:03:00");
  EXPECT_EQ(takeOut(edited, chosen.before), expected + "lock: True");
}

TEST(XscreensaverChoice, NothingIsTakenOutWhereNothingIs) {
  for (const std::string& text :
       {written, std::string(), std::string("mode: one\nselected: 0\nprograms: a\n")}) {
    EXPECT_EQ(takeOut(text, ChoiceBefore{"blank", "7"}), text);
    EXPECT_FALSE(isListed(text));
  }
  EXPECT_TRUE(isListed(chosenIn("").text));
}

}  // namespace
