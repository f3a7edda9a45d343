// Implements the UTF-8 decoder.
#include "graphics/linux/utf8.h"

namespace {

// How many bytes a sequence that begins with this one has; 0 where none begins with it.
std::size_t lengthByFirstByte(unsigned char first) {
  if (first < 0x80) {
    return 1;
  }
  if (first >= 0xC2 && first < 0xE0) {
    return 2;
  }
  if (first >= 0xE0 && first < 0xF0) {
    return 3;
  }
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

bool isCharacter(char32_t value, std::size_t length) {
  constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  return value >= smallest[length] && value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

}  // namespace

Utf8Character firstCharacter(std::string_view text) {
  const auto first = static_cast<unsigned char>(text.front());
  const std::size_t length = lengthByFirstByte(first);
  if (length == 0 || length > text.size()) {
    return {};
  }
  char32_t value = length == 1 ? first : first & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) {
      return {};
    }
    value = (value << 6U) | (byte & 0x3FU);
  }
  return isCharacter(value, length) ? Utf8Character{value, length} : Utf8Character{};
}
