// Reads the framework's command line.
#include "host/windows/framework/commandLine.h"

#include <charconv>
#include <string_view>
#include <system_error>

namespace {

// 0 where the text is not wholly a decimal number that fits.
std::uintptr_t windowNumber(std::string_view text) {
  std::uintptr_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

// The letter of an option such as "/s" or "-C:123", in lower case; 0 for anything else.
char optionLetter(std::string_view option) {
  const bool isOption = option.size() >= 2 && (option[0] == '/' || option[0] == '-') &&
                        (option.size() == 2 || option[2] == ':');
  if (!isOption) {
    return 0;
  }
  const char letter = option[1];
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::uintptr_t namedWindow(const std::vector<std::string>& arguments) {
  const std::string_view option = arguments[1];
  if (option.size() > 3) {
    return windowNumber(option.substr(3));
  }
  return arguments.size() > 2 ? windowNumber(arguments[2]) : 0;
}

}  // namespace

FrameworkCommand frameworkCommandOf(const std::vector<std::string>& arguments) {
  using Mode = FrameworkCommand::Mode;
  if (arguments.size() < 2) {
    return {};
  }
  switch (optionLetter(arguments[1])) {
    case 's':
      return {Mode::fullRun, 0, false};
    case 'p':
      return {Mode::preview, namedWindow(arguments), false};
    case 'a':
      return {Mode::changePassword, 0, false};
    case 'c': {
      const std::uintptr_t owner = namedWindow(arguments);
      return {Mode::configuration, owner, owner == 0};
    }
    default:
      return {};
  }
}
