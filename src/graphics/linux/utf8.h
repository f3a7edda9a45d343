// Decodes UTF-8 text into characters.
#pragma once

#include <string>
#include <string_view>

// What stands for a byte that belongs to no character.
inline constexpr char32_t replacementCharacter = 0xFFFD;

// The characters of the text. Each byte that is no part of a well-formed sequence (overlong forms, surrogates
// and values above U+10FFFF included) gives one replacement character; decoding goes on with the next byte.
std::u32string decodeUtf8(std::string_view text);
