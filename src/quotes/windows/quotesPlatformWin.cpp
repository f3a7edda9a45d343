// The face and the characters of quotes on Windows.
#include <algorithm>
#include <limits>

#include "graphics/windows/gdi.h"
#include "quotes/platform.h"

const char* quotesPlatform::faceName() {
  return "Georgia";
}

std::size_t quotesPlatform::characterCount(std::string_view text) {
  const auto bytes = static_cast<int>(std::min<std::size_t>(text.size(), std::numeric_limits<int>::max()));
  const int count = bytes > 0 ? MultiByteToWideChar(CP_ACP, 0, text.data(), bytes, nullptr, 0) : 0;
  return count > 0 ? static_cast<std::size_t>(count) : text.size();
}

std::size_t quotesPlatform::bytesOfWholeCharacters(std::string_view text, std::size_t limit) {
  if (text.size() <= limit) {
    return text.size();
  }
  // From the beginning, since the second byte of a character may look like the first one of another.
  std::size_t bytes = 0;
  while (bytes < limit) {
    const std::size_t length = IsDBCSLeadByte(static_cast<BYTE>(text[bytes])) != FALSE ? 2 : 1;
    if (bytes + length > limit) {
      break;
    }
    bytes += length;
  }
  return bytes;
}
