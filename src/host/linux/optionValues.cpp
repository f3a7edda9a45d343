// Implements the reading of option values.
#include "host/linux/optionValues.h"

#include <charconv>
#include <system_error>

namespace {

// A number that fills the whole text; nothing where it does not.
std::optional<std::uint32_t> numberOf(std::string_view digits, int base) {
  std::uint32_t number = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number, base);
  if (digits.empty() || error != std::errc{} || stop != end) {
    return std::nullopt;
  }
  return number;
}

// 0 where the digits are no side of a window.
int sideOf(std::string_view digits) {
  const std::uint32_t side = numberOf(digits, 10).value_or(0);
  return side <= static_cast<std::uint32_t>(largestSide) ? static_cast<int>(side) : 0;
}

}  // namespace

std::optional<std::uint32_t> windowIdOf(std::string_view text) {
  const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
  return isHexadecimal ? numberOf(text.substr(2), 16) : numberOf(text, 10);
}

std::optional<WindowSize> windowSizeOf(std::string_view text) {
  const std::size_t times = text.find('x');
  if (times == std::string_view::npos) {
    return std::nullopt;
  }
  const WindowSize size{sideOf(text.substr(0, times)), sideOf(text.substr(times + 1))};
  return size.width != 0 && size.height != 0 ? std::optional(size) : std::nullopt;
}
