// What a platform supplies to the display of quotes.
#pragma once

#include <cstddef>
#include <string_view>

namespace quotesPlatform {

// The face that quotes are set in: one with serifs that the platform is sure to have, or to replace by a like
// one. A literal of at most 15 characters, so that no string needs memory to copy it in each
// frame.
const char* faceName();

// How many characters a narrow string of the platform shows; never more than it has bytes.
std::size_t characterCount(std::string_view text);

// How many bytes of the text a piece of at most `limit` bytes may take from its beginning so that no
// character is cut in two: the whole text where it is not longer, otherwise limit or a few bytes fewer, in
// [0, limit]. A byte that belongs to no character counts as one.
std::size_t bytesOfWholeCharacters(std::string_view text, std::size_t limit);

}  // namespace quotesPlatform
