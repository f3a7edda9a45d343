// The application object on Linux.
#include "support/linux/applicationLinux.h"

#include <utility>

namespace {

std::vector<std::string>& canonicalArguments() {
  static std::vector<std::string> arguments;
  return arguments;
}

std::string joined(const std::vector<std::string>& arguments) {
  std::string line;
  for (const auto& argument : arguments) {
    line += (line.empty() ? "" : " ") + argument;
  }
  return line;
}

}  // namespace

xplAppLinux::xplAppLinux() : xplAppBase(joined(canonicalArguments()), canonicalArguments()) {}

void xplAppLinux::setArguments(std::vector<std::string> arguments) {
  canonicalArguments() = std::move(arguments);
}
