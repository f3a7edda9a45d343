// Implements the application object on Linux.
#include "support/linux/applicationLinux.h"

#include <utility>

namespace {

std::vector<std::string>& canonicalArguments() {
  static std::vector<std::string> arguments;
  return arguments;
}

// One line of all arguments, separated by blanks; those that hold a blank themselves, or nothing, in double
// quotes.
std::string lineOf(const std::vector<std::string>& arguments) {
  std::string line;
  for (const std::string& argument : arguments) {
    const bool quote = argument.empty() || argument.find_first_of(" \t") != std::string::npos;
    line += (line.empty() ? "" : " ") + (quote ? '"' + argument + '"' : argument);
  }
  return line;
}

}  // namespace

xplAppLinux::xplAppLinux() : xplAppBase(lineOf(canonicalArguments()), canonicalArguments()) {}

void xplAppLinux::setArguments(std::vector<std::string> arguments) {
  canonicalArguments() = std::move(arguments);
}
