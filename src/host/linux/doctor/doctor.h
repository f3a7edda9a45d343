// `lunaria --doctor`: looks at the system and says what is well and what is not.
#pragma once

#include <string>

struct Diagnosis {
  std::string report;
  bool isWell = false;
};

// Needs no display. Takes up to some seconds where a service does not answer, and changes nothing.
Diagnosis diagnose();
