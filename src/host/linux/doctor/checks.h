// The checks of the system, one for each matter. Each looks, and changes nothing.
#pragma once

#include "host/linux/doctor/finding.h"
#include "host/linux/doctor/systemView.h"

// The desktop, and the display with its monitors.
class DesktopCheck {
 public:
  static Findings look(SystemView& system);
};

// Who starts screen savers here, when, and whether Lunaria is the one.
class SaverCheck {
 public:
  static Findings look(SystemView& system);
};

// The fonts that the texts of the sky are drawn with.
class FontCheck {
 public:
  static Findings look(SystemView& system);
};

// Whether sound can be heard, and the computer kept awake.
class ServiceCheck {
 public:
  static Findings look(SystemView& system);
};

// The program's own files, and the program that edits the settings.
class FileCheck {
 public:
  static Findings look(SystemView& system);
};

// All of them, in the order of the report.
std::vector<Chapter> lookAround(SystemView& system);
