// The list of savers in XScreenSaver's preferences file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/linux/xscreensaver/xscreensaverLines.h"

namespace xscreensaver {

// An entry that is not blank; `selected` counts these from 0. All numbers are byte offsets in the text.
struct Entry {
  std::string command;        // without the dash, the visual and the label that may stand before it
  std::size_t begin = 0;      // after what ends the entry before
  std::size_t textBegin = 0;  // of its first character that is no blank
  std::size_t textEnd = 0;    // before what ends this one
  std::size_t end = 0;        // after that; textEnd where nothing does
  std::optional<std::size_t> endBefore{};  // where that which ends the entry before begins

  // The first word of the command, and that without its folder.
  std::string program() const;
  std::string programName() const;
  // Whether this word stands in the command.
  bool has(std::string_view word) const;
};

struct ProgramList {
  std::vector<Entry> entries;
  std::size_t appendAt = 0;  // where a further entry can be put in
  bool isEnded = true;       // whether the entry before that place is ended, or there is none
};

// line: the one that sets `programs`.
ProgramList programsOf(std::string_view text, const Line& line);

// Adds an entry at the list's end, so that all others keep their numbers. Where there is no list, one is made
// at the text's begin: XScreenSaver adds its own entries to it. removeEntry() undoes it to the byte.
void appendEntry(std::string& text, const std::string& command);
// Removes the entry of this number from the list, and the list with it where appendEntry() had made it.
void removeEntry(std::string& text, std::size_t number);

}  // namespace xscreensaver
