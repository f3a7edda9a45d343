// Puts findings into words on a page.
#pragma once

#include <string>
#include <vector>

#include "host/linux/doctor/finding.h"

// The whole report, lines of at most 80 characters, each with its end. Cures and paths are there to be
// copied: they are not broken, and may be longer.
std::string reportOf(const std::vector<Chapter>& chapters);

// How many of the findings are problems.
int problemsIn(const std::vector<Chapter>& chapters);
