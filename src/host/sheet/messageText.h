// Makes what was typed or pasted into the Messages page fit to be kept.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// How many characters of an edit control are read; a line break counts as two.
inline constexpr std::size_t maxMessageCharacters = 4999;

// A message: every line break ("\r\n", "\r" or "\n") becomes "\r\n", a tab a blank, and other control
// characters, which no font can show, are left out.
std::string tidyMessage(std::string_view text);

// A bottom line: the same, but line breaks become blanks, since it is one line.
std::string tidyBottomLine(std::string_view text);
