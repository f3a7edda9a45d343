// The face and the characters of quotes on Linux.
#include <algorithm>

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
