// Decodes UTF-8 text into characters.
#pragma once

#include <cstddef>
#include <string_view>

// What stands for a byte that belongs to no character.
inline constexpr char32_t replacementCharacter = 0xFFFD;

struct Utf8Character {
  char32_t character = replacementCharacter;
  std::size_t length = 1;  // bytes
};

// The first character of a text that is not empty. A byte that is no part of a well-formed sequence (overlong
// forms, surrogates and values above U+10FFFF included) is a replacement character of its own.
Utf8Character firstCharacter(std::string_view text);

// Calls visit(character) for each character of the text, in order.
template <class Visit>
void forEachCharacter(std::string_view text, Visit visit) {
  while (!text.empty()) {
    const Utf8Character first = firstCharacter(text);
    visit(first.character);
    text.remove_prefix(first.length);
  }
}
