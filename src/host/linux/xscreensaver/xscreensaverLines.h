// The lines of XScreenSaver's preferences file, told apart as XScreenSaver itself does.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace xscreensaver {

// One line, with those that a backslash at its end joins to it. All numbers are byte offsets in the text.
struct Line {
  std::string key;         // in small letters; empty for a comment and whatever else sets nothing
  std::size_t begin;       // of the line
  std::size_t afterColon;  // where its value begins, blanks included; meaningless without a key
  std::size_t end;         // where its text ends: before the line end, or a backslash that ends the file
  std::size_t next;        // where the next line begins
};

std::vector<Line> linesOf(std::string_view text);

// The line that sets this key: the last one, as later lines override earlier ones; nullptr where there is
// none.
const Line* lineOf(const std::vector<Line>& lines, std::string_view key);

// The value's bytes as they stand, without the blanks before it, and where they begin.
std::size_t valueBegin(std::string_view text, const Line& line);
std::string rawValue(std::string_view text, const Line& line);
// The value as XScreenSaver takes it: without blanks at its ends, joined, its escapes undone.
std::string plainValue(std::string_view text, const Line& line);

// Sets the key's value: in the line that sets it, or else in a new one before the line of `programs`, which
// must be there.
void setValue(std::string& text, std::string_view key, std::string_view value);
// Removes the line that sets the key, where there is one.
void removeLine(std::string& text, std::string_view key);

// What ends the lines of this text: "\r\n" where its first line ends so, else "\n".
std::string_view lineEndOf(std::string_view text);
std::string_view trimmed(std::string_view text);

// A character of a value after joining and with its escape undone, and the bytes [begin, end) it stands in.
struct Piece {
  char character;
  bool endsEntry;  // the escape \n, which ends an entry of a list
  std::size_t begin, end;
};

// The pieces of text[begin, end).
std::vector<Piece> piecesOf(std::string_view text, std::size_t begin, std::size_t end);

// Whether the bytes at this offset are a backslash and a line end, which join two lines.
bool joinsLines(std::string_view text, std::size_t offset);

}  // namespace xscreensaver
