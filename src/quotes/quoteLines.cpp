// Splits quotes.
#include "quotes/quoteLines.h"

#include <algorithm>
#include <string_view>

#include "quotes/platform.h"

std::vector<std::string> quoteLines(const char* text) {
  std::vector<std::string> lines;
  std::string_view rest = text;
  std::size_t bytesLeft = maxQuoteBytes;
  while (lines.size() < maxQuoteLines && bytesLeft > 0) {
    const std::string_view line = rest.substr(0, rest.find('|'));
    const std::size_t length =
        quotesPlatform::bytesOfWholeCharacters(line, std::min(maxQuoteLineBytes, bytesLeft));
    if (length == 0 && !line.empty()) {
      break;  // no room for its first character: it would show as an empty line
    }
    lines.emplace_back(line.substr(0, length));
    bytesLeft -= length;
    if (length < line.size() || line.size() == rest.size()) {
      break;
    }
    rest.remove_prefix(line.size() + 1);
  }
  return lines;
}
