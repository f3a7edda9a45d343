// Puts the checks into the order of the report.
#include "host/linux/doctor/checks.h"

std::vector<Chapter> lookAround(SystemView& system) {
  return {
      {"Desktop and display", DesktopCheck::look(system)},
      {"Screen saver", SaverCheck::look(system)},
      {"Fonts", FontCheck::look(system)},
      {"Sound and sleep", ServiceCheck::look(system)},
      {"Files and settings", FileCheck::look(system)},
  };
}
