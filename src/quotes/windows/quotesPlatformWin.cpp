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
