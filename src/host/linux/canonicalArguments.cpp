// Puts the command line into the one form that the application object gets.
#include "host/linux/commandLine.h"

std::vector<std::string> canonicalArguments(const std::string& program, const HostRequest& request) {
  switch (request.mode) {
    case HostRequest::Mode::preview:
      return {program, "/p", std::to_string(request.window.value_or(0))};
    case HostRequest::Mode::configuration:
      return {program, "/c"};
    default:
      return {program, "/s"};
  }
}
