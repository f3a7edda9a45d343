// What the tests of XScreenSaver's preferences share: a choice made in a text, and what stands in it then.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/linux/xscreensaver/xscreensaverChoice.h"
#include "host/linux/xscreensaver/xscreensaverPrograms.h"

namespace xscreensaver {

inline const std::string command = "lunaria --root";

inline bool everything(const std::string& /*program*/) {
  return true;
}

inline Chosen chosenIn(const std::string& text) {
  return choose(text, command, everything);
}

inline std::vector<Entry> entriesOf(const std::string& text) {
  const auto lines = linesOf(text);
  const Line* line = lineOf(lines, "programs");
  return line != nullptr ? programsOf(text, *line).entries : std::vector<Entry>();
}

inline std::string valueOf(const std::string& text, const std::string& key) {
  const auto lines = linesOf(text);
  const Line* line = lineOf(lines, key);
  return line != nullptr ? plainValue(text, *line) : "(none)";
}

// The command that XScreenSaver starts in the mode "one".
inline std::string startedBy(const std::string& text) {
  const auto entries = entriesOf(text);
  const auto number = std::stoul(valueOf(text, "selected"));
  return valueOf(text, "mode") == "one" && number < entries.size() ? entries[number].command : "";
}

inline void expectRoundTrip(const std::string& text) {
  SCOPED_TRACE(testing::PrintToString(text));
  const Chosen chosen = chosenIn(text);
  EXPECT_EQ(startedBy(chosen.text), command);
  EXPECT_EQ(takeOut(chosen.text, chosen.before), text);
}

// As the settings program of XScreenSaver 6.06 writes it, in small.
inline const std::string written =
    "# XScreenSaver Preferences File\n# Written by "
    "somebody.\n\ntimeout:\t0:10:00\nmode:\t\trandom\nselected:\t1\n\n"
    "programs:\t\t\t\t\t\t\t\t      \\\n\t\t\t\tmaze --root\t\t\t\t    \\n\\\n- GL: \t\t\t\tcubes "
    "--root\t\t\t    \\n\\\n\n\n"
    "pointerHysteresis:  10\n";

}  // namespace xscreensaver
