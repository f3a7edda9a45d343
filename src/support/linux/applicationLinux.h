// The application object on Linux: the command line is the one that the host hands over in canonical form.
#pragma once

#include <string>
#include <vector>

#include "support/application.h"

class xplAppLinux : public xplAppBase {
 public:
  xplAppLinux();

  // The program's own name and the framework's canonical arguments ("/s", "/p" ID or "/c"). The host calls
  // this once, before any application object is made.
  static void setArguments(std::vector<std::string> arguments);
};
