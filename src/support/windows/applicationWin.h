// The application object on Windows: the command line is the process's own.
#pragma once

#include "support/application.h"

class xplAppWin : public xplAppBase {
 public:
  xplAppWin();
};
