// The quotes that the program carries; their texts are in src/resources/quotes.
#pragma once

#include <array>
#include <cstddef>

#include "quotes/quote.h"

inline constexpr std::size_t builtInQuotesCount = 242;

// Constant data, made by src/quotes/makeBuiltInQuotes.cmake. The categories are mixed evenly.
extern const std::array<sQuote, builtInQuotesCount> builtInQuotes;
