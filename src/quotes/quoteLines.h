// Takes a quote apart into the lines that are shown.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

// What is shown of a quote at most: more than any screen has room for, and little enough that measuring and
// drawing it never holds up a frame, whatever stands in the user's file.
inline constexpr std::size_t maxQuoteLines = 200;
inline constexpr std::size_t maxQuoteLineBytes = 4096;
inline constexpr std::size_t maxQuoteBytes = 8192;  // all lines together

// The parts of a zero-terminated text between its '|', also empty ones; an empty text is one empty line.
// Never without a line. What goes beyond the limits is left out: no character is cut in two, and no line is
// empty because nothing of it had room.
std::vector<std::string> quoteLines(const char* text);
