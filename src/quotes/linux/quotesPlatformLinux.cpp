// The face and the characters of quotes on Linux.
#include <algorithm>

#include "graphics/linux/utf8.h"
#include "quotes/platform.h"

// The name for which every system has this face or one of the same widths: where a quote stands depends on
// how wide it is, and the generic "serif" would be another face on each machine.
const char* quotesPlatform::faceName() {
  return "Times New Roman";
}

std::size_t quotesPlatform::characterCount(std::string_view text) {
  // Every byte of UTF-8 but those that continue a character begins one.
  const auto beginsCharacter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), beginsCharacter));
}

std::size_t quotesPlatform::bytesOfWholeCharacters(std::string_view text, std::size_t limit) {
  if (text.size() <= limit) {
    return text.size();
  }
  // Only a character that begins up to three bytes before the limit can go beyond it.
  for (std::size_t begin = limit - std::min<std::size_t>(3, limit); begin < limit; ++begin) {
    if (begin + firstCharacter(text.substr(begin)).length > limit) {
      return begin;
    }
  }
  return limit;
}
