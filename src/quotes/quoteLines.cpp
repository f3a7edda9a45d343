// Splits quotes.
#include "quotes/quoteLines.h"

#include <algorithm>

std::vector<std::string> quoteLines(const char* text) {
  std::vector<std::string> lines;
  std::size_t bytesLeft = maxQuoteBytes;
  for (const char* end = text; lines.size() < maxQuoteLines; ++end) {
    const char* const start = end;
    const char* const limit = start + std::min(maxQuoteLineBytes, bytesLeft);
    while (end != limit && *end != '|' && *end != '\0') {
      ++end;
    }
    lines.emplace_back(start, end);
    bytesLeft -= lines.back().size();
    if (*end != '|') {
      break;
    }
  }
  return lines;
}
