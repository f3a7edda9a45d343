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

}  // namespace quotesPlatform
