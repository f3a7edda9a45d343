// A quote and its category.
#pragma once

#include <cstdint>

// The numbers of the categories. Dreams and farewells have no setting that allows them.
namespace quoteCategory {

inline constexpr std::int32_t love = 1;
inline constexpr std::int32_t wisdom = 2;
inline constexpr std::int32_t womenVsMen = 3;
inline constexpr std::int32_t advice = 4;
inline constexpr std::int32_t funny = 5;
inline constexpr std::int32_t dreams = 6;
inline constexpr std::int32_t farewells = 7;
inline constexpr std::int32_t peace = 8;
inline constexpr std::int32_t user = 10;

}  // namespace quoteCategory

// The text lives as long as the process. '|' stands between the lines that are shown one below the other; a
// source, where there is one, is the last line, in parentheses.
struct sQuote {
  std::int32_t category = 0;
  const char* text = "";  // zero-terminated; UTF-8 on Linux, the system code page on Windows
};
